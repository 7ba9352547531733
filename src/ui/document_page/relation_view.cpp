#include "ui/document_page/relation_view.h"

#include "register/relation_actions.h"
#include "register/relation_kinds.h"
#include "ui/busy_pointer.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/grid.h"
#include "ui/controls/status_marks.h"
#include "ui/controls/strip.h"
#include "ui/controls/tool_bar.h"
#include "ui/controls/wrapping_label.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/theme/document_signs.h"
#include "ui/theme/icons.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QToolBar>

namespace quelvarn {

namespace {

constexpr std::string_view TABLE_PART = "Wechseln zur Tabelle des markierten Teils.";
constexpr std::string_view TABLE_MODEL = "Wechseln zur Tabelle des markierten Modells.";
constexpr std::string_view MODEL = "Anschauen des Solid Edge-Modells";

struct Field
{
    const char* title;
    std::string GeneralPage::*value;
};

// Of a component the grid has only the file.
constexpr std::array NAME{Field{"Dokumentname", &GeneralPage::DokuBez}, Field{"Revision", &GeneralPage::RevBez}};
constexpr std::array FIELDS{
    Field{"Titel", &GeneralPage::Titel},           Field{"Thema", &GeneralPage::Thema},
    Field{"Projekt", &GeneralPage::Projekt},       Field{"Material", &GeneralPage::Material},
    Field{"Firma", &GeneralPage::Firma},           Field{"Kategorie", &GeneralPage::Kategorie},
    Field{"Manager", &GeneralPage::Manager},       Field{"Geändert", &GeneralPage::Geaendert},
    Field{"Bearbeiter", &GeneralPage::Bearbeiter}, Field{"Erstellt", &GeneralPage::Erstellt},
    Field{"Autor", &GeneralPage::Autor},
};

std::vector<GridColumn> columns(const RelationKind& kind)
{
    const DocumentFields& fields = kind.fields;
    if (kind.components())
        return {{"Dateiname", fields.Dateiname}, {"Pfad- u. Dateiname", fields.filename}};
    return {{"Dokumentname", fields.DokuBez},
            {"Revision", fields.RevBez},
            {"Dateiname", fields.Dateiname},
            {"Pfad- u. Dateiname", fields.filename}};
}

std::vector<int> shares(const RelationKind& kind)
{
    return kind.components() ? std::vector{40, 60} : std::vector{31, 18, 24, 27};
}

} // namespace

const std::array<RelationNames, 6> RELATION_NAMES{{
    {InfoPageId::InAssembly, "", "InfoAssembDG", "TlbPartInAssemb", "Anschauen Baugruppe", TABLE_PART, "SVPEnthaltenIn",
     "LblInfoAssemb", 0},
    {InfoPageId::InDrawing, "", "InfoDraftDG", "TlbModellInDraft", "Anschauen Zeichnung.", TABLE_PART, "SVDEnthaltenIn",
     "LblInfoDraft", 1},
    {InfoPageId::ConsistsOf, "FrmInfoBestehtAus", "DGAssembBestehtAus", "TlbAssembMadeOf", "Anschauen Teil.",
     TABLE_PART, "SVPartBestehtAus", "LblInfoBestehtAus", 2},
    {InfoPageId::Contains, "FrmInfoEnthaelt", "DGDraftEnthaelt", "TlbDrawingMadeOf", MODEL, TABLE_MODEL,
     "SVPartEnthaelt", "LblInfoEnthaelt", 3},
    {InfoPageId::InWeldment, "", "InfoAssembWeldDG", "TlbAssembInWeld", "Anschauen Baugruppe", TABLE_PART,
     "SVPEnthaltenInWeld", "LblInfoAssembWeld", 4},
    {InfoPageId::ContainsAssembly, "", "DGWeldEnthaelt", "TlbWeldMadeOf", MODEL, TABLE_MODEL, "SVWeldEnthaelt",
     "LblInfoWeldEnthaelt", 5},
}};

RelationView::RelationView(RelationPage& model, RelationActions& actions, const RelationNames& names, QWidget& preview)
    : model_(model), actions_(actions), names_(names), kind_(relationKindOf(names.page)),
      grid_(new Grid(names.grid, columns(kind_), shares(kind_))),
      bar_(quelvarn::newBar(names.bar, ButtonKind::TextOnly)),
      ChViewGrafik_(new QCheckBox(QStringLiteral("Graphik anzeigen"))), empty_(new QLabel), preview_(&preview)
{
    setObjectName(toQt(names.frame));
    auto* title = caption(toQt(kind_.node), TextRole::Heading);
    title->setContentsMargins(12, 8, 12, 4);
    buildGrid();
    fields_ = newFields();
    preview_->setObjectName(toQt(names.preview));
    preview_->hide();
    empty_->setText(QStringLiteral("Keine Einträge"));
    empty_->setAlignment(Qt::AlignCenter);
    setRole(*empty_, TextRole::Caption);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(title);
    layout->addWidget(grid_, 3);
    layout->addWidget(empty_, 3);
    layout->addWidget(newBar());
    layout->addWidget(fields_, 4);
    layout->addWidget(preview_, 4);
}

void RelationView::buildGrid()
{
    grid_->setAccessibleName(toQt(kind_.node));
    grid_->chosen = [this](const QModelIndex& position) { model_.rowChosen(static_cast<std::size_t>(position.row())); };
    grid_->opened = [this](const QModelIndex&) { perform([this] { actions_.open(); }); };
    grid_->entered = [this](const QModelIndex&) { perform([this] { actions_.goToTable(); }); };
}

QAction* RelationView::addButton(std::string_view key, std::string_view caption, std::string_view tip,
                                 const std::function<void()>& operation)
{
    auto* button = addBarButton(*bar_, {key, caption, tip, ""});
    connect(button, &QAction::triggered, this, guardedSlot([this, operation] { perform(operation); }));
    return button;
}

QWidget* RelationView::newBar()
{
    openInViewer_ = addButton("Anschauen", "Anschauen", names_.tipView, [this] { model_.openInViewer(); });
    addButton("Pfad in ZwSp", "   Pfad in ZwSp", "Pfad-/Dateiname in Zwischenspeicher.",
              [this] { model_.pathToClipboard(); });
    addButton("Zu Favoriten", "Zu Favoriten", "Zu Favoriten hinzufügen.", [this] { actions_.addToFavourites(); });
    addButton("Wechseln zu", "Wechseln zu", names_.tipSwitch, [this] { actions_.goToTable(); });
    bar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar_->setProperty("narrow", true);
    ChViewGrafik_->setObjectName(QStringLiteral("ChViewGrafik(%1)").arg(names_.graphic));
    connect(ChViewGrafik_, &QCheckBox::clicked, this, guardedSlot([this](bool set) { model_.setGraphic(set); }));

    auto* below = new QWidget;
    auto* layout = new QVBoxLayout(below);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->setSpacing(2);
    layout->addWidget(bar_);
    auto* graphic = new QHBoxLayout;
    graphic->setContentsMargins(8, 0, 8, 0);
    graphic->addWidget(ChViewGrafik_);
    layout->addLayout(graphic);
    return below;
}

QWidget* RelationView::newFields()
{
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(12, 4, 12, 8);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(2);
    grid->setColumnMinimumWidth(0, fontMetrics().horizontalAdvance(QStringLiteral("Dokumentname")));
    grid->setColumnStretch(1, 1);
    int row = 0;
    const auto add = [&](const Field& field) {
        auto* heading = caption(QString::fromUtf8(field.title), TextRole::Caption);
        heading->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        auto* value = new WrappingLabel;
        value->setObjectName(QStringLiteral("%1(%2)").arg(toQt(names_.fields)).arg(row));
        grid->addWidget(heading, row, 0);
        grid->addWidget(value, row++, 1);
        values_.push_back({value, field.value});
    };
    buildStatus(*grid, row++);
    if (kind_.components())
        std::ranges::for_each(NAME, add);
    std::ranges::for_each(FIELDS, add);
    grid->setRowStretch(row, 1);

    auto* scrollArea = new QScrollArea;
    scrollArea->setFrameShape(QFrame::NoFrame);
    scrollArea->setWidgetResizable(true);
    scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollArea->setFocusPolicy(Qt::NoFocus);
    scrollArea->setWidget(content);
    return scrollArea;
}

void RelationView::buildStatus(QGridLayout& grid, int row)
{
    point_ = new StatusDot;
    statusName_ = new StatusCaption;
    statusName_->setObjectName(toQt(names_.fields) + QStringLiteral("Status"));
    auto* number = new ShortLabel;
    number->setObjectName(QStringLiteral("%1(%2)").arg(toQt(names_.fields)).arg(row));
    values_.push_back({number, &GeneralPage::Status});
    auto* layoutRow = new QHBoxLayout;
    layoutRow->setSpacing(5);
    layoutRow->setContentsMargins(OVERHANG, 0, 0, 0);
    layoutRow->addWidget(point_);
    layoutRow->addWidget(number);
    layoutRow->addWidget(statusName_);
    layoutRow->addStretch(1);
    grid.addWidget(caption(QStringLiteral("Status"), TextRole::Caption), row, 0);
    grid.addLayout(layoutRow, row, 1);
}

bool RelationView::isInFront() const
{
    return model_.kind() == &kind_;
}

void RelationView::perform(const std::function<void()>& operation)
{
    const BusyCursor wait;
    operation();
    if (!isInFront() && leave)
        leave();
}

void RelationView::refresh()
{
    if (!isInFront())
        return grid_->display(nullptr, model_.generation());
    const bool full = model_.hasRows();
    grid_->display(full ? &model_.rows() : nullptr, model_.generation());
    grid_->setVisible(full);
    empty_->setVisible(!full);
    for (QAction* button : bar_->actions())
        button->setEnabled(model_.usable());
    ChViewGrafik_->setEnabled(full);
    ChViewGrafik_->setChecked(model_.ChViewGrafik());
    preview_->setVisible(model_.showsPreview());
    fields_->setVisible(!model_.showsPreview());
    showDetails();
}

void RelationView::showDetails()
{
    const GeneralPage& details = model_.details();
    for (const ShownValue& value : values_)
        value.label->setText(toQt(details.*value.field));
    point_->setVisible(!details.empty);
    point_->setColour(details.statusColour);
    statusName_->setText(toQt(details.StatusName));
    statusName_->setColour(details.statusColour);
    const std::string_view character =
        model_.SondertabelleNr() != 0 ? SPECIAL_TABLE_SIGN : documentSign(model_.filename());
    if (character == character_)
        return;
    character_ = character;
    openInViewer_->setIcon(icon(character));
}

} // namespace quelvarn
