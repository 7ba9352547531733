#include "ui/document_page/general_page.h"

#include "register/general_page.h"
#include "register/info_pages.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/status_marks.h"
#include "ui/controls/strip.h"
#include "ui/controls/wrapping_label.h"
#include "ui/text.h"
#include "ui/theme/colours.h"

#include <QGridLayout>
#include <QLabel>

#include <utility>

namespace quelvarn {

namespace {

struct Row
{
    int index; // Of the caption in LblInfo; the value is the next one.
    const char* heading;
    std::string GeneralPage::*field;
};

constexpr Row DOCUMENT[]{{1, "Dokumentname", &GeneralPage::DokuBez}, {3, "Revision", &GeneralPage::RevBez}};
constexpr Row PROPERTIES[]{
    {10, "Titel", &GeneralPage::Titel},     {12, "Thema", &GeneralPage::Thema},
    {14, "Projekt", &GeneralPage::Projekt}, {16, "Material", &GeneralPage::Material},
    {18, "Firma", &GeneralPage::Firma},     {20, "Kategorie", &GeneralPage::Kategorie},
    {22, "Manager", &GeneralPage::Manager},
};
constexpr Row FILE[]{{30, "Dateiname", &GeneralPage::Dateiname}, {32, "Pfad", &GeneralPage::filename}};

QString name(int index)
{
    return QStringLiteral("LblInfo(%1)").arg(index);
}

// With its distances, so that it can go without leaving them.
QWidget* separate(QGridLayout& grid, int row)
{
    auto* place = new QWidget;
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 6, 0, 6);
    layout->addWidget(separatorLine());
    grid.addWidget(place, row, 0, 1, 2);
    return place;
}

} // namespace

GeneralView::GeneralView() : point_(new StatusDot), content_(new QWidget)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    auto* grid = new QGridLayout(content_);
    grid->setContentsMargins(12, 8, 12, 8);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(3);
    grid->setColumnMinimumWidth(0, fontMetrics().horizontalAdvance(QStringLiteral("Dokumentname")));
    grid->setColumnStretch(1, 1);

    int row = 0;
    for (const Row& part : DOCUMENT)
        buildRow(*grid, row++, part.index, QString::fromUtf8(part.heading), part.field);
    setRole(*values_.front().label, TextRole::Heading);
    buildStatus(*grid, row++);
    separate(*grid, row++);
    for (const Row& part : PROPERTIES)
        buildRow(*grid, row++, part.index, QString::fromUtf8(part.heading), part.field);
    separate(*grid, row++);
    buildChange(*grid, row++, 24, QStringLiteral("Geändert"), &GeneralPage::Geaendert, &GeneralPage::Bearbeiter);
    buildChange(*grid, row++, 27, QStringLiteral("Erstellt"), &GeneralPage::Erstellt, &GeneralPage::Autor);
    buildRelation(*grid, row);
    row += 3;
    separate(*grid, row++);
    for (const Row& part : FILE)
        buildRow(*grid, row++, part.index, QString::fromUtf8(part.heading), part.field);
    grid->setRowStretch(row, 1);
    setWidget(content_);
}

QLabel* GeneralView::newHeading(int index, const QString& text)
{
    auto* heading = caption(text, TextRole::Caption, name(index));
    heading->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return heading;
}

QLabel* GeneralView::newValue(int index, std::string GeneralPage::*field, bool wrap)
{
    QLabel* value = wrap ? static_cast<QLabel*>(new WrappingLabel) : new ShortLabel;
    value->setObjectName(name(index));
    if (!wrap)
        value->setContentsMargins(OVERHANG, 0, 0, 0);
    values_.push_back({value, field});
    return value;
}

void GeneralView::buildRow(QGridLayout& grid, int row, int index, const QString& heading,
                           std::string GeneralPage::*field)
{
    grid.addWidget(newHeading(index, heading), row, 0);
    grid.addWidget(newValue(index + 1, field, true), row, 1);
}

void GeneralView::buildStatus(QGridLayout& grid, int row)
{
    auto* layoutRow = new QHBoxLayout;
    layoutRow->setSpacing(5);
    layoutRow->addWidget(point_);
    layoutRow->addWidget(newValue(6, &GeneralPage::Status));
    statusName_ = new StatusCaption;
    statusName_->setObjectName(name(7));
    layoutRow->addWidget(statusName_);
    layoutRow->addStretch(1);
    grid.addWidget(newHeading(5, QStringLiteral("Status")), row, 0);
    grid.addLayout(layoutRow, row, 1);
}

void GeneralView::buildChange(QGridLayout& grid, int row, int index, const QString& heading,
                              std::string GeneralPage::*date, std::string GeneralPage::*who)
{
    auto* layoutRow = new QHBoxLayout;
    layoutRow->setSpacing(12);
    layoutRow->addWidget(newValue(index + 1, date), 0, Qt::AlignTop);
    layoutRow->addWidget(newValue(index + 2, who, true), 1);
    grid.addWidget(newHeading(index, heading), row, 0);
    grid.addLayout(layoutRow, row, 1);
}

// What stands there, and whether anything does, depends on the kind of document.
void GeneralView::buildRelation(QGridLayout& grid, int row)
{
    const auto display = [&, this](int index, std::string GeneralPage::*heading, std::string GeneralPage::*value) {
        auto* label = newValue(index, heading);
        label->setContentsMargins({});
        setRole(*label, TextRole::Caption);
        grid.addWidget(label, row, 0, Qt::AlignTop);
        grid.addWidget(newValue(index + 1, value, true), row++, 1);
    };
    relation_ = separate(grid, row++);
    display(8, &GeneralPage::heading8, &GeneralPage::value9);
    display(39, &GeneralPage::heading39, &GeneralPage::value40);
}

// A line without a caption takes no room.
void GeneralView::showRelation(const GeneralPage& page)
{
    const std::pair<int, bool> rows[]{{8, !page.heading8.empty()}, {39, !page.heading39.empty()}};
    for (const auto& [index, there] : rows)
        for (const int position : {index, index + 1})
            content_->findChild<QLabel*>(name(position))->setVisible(there);
    relation_->setVisible(rows[0].second || rows[1].second);
}

void GeneralView::refresh(const GeneralPage& page)
{
    for (const ShownValue& value : values_)
        value.label->setText(toQt(page.*value.field));
    showRelation(page);
    point_->setVisible(!page.empty);
    point_->setColour(page.statusColour);
    statusName_->setText(toQt(page.StatusName));
    statusName_->setColour(page.statusColour);
}

} // namespace quelvarn
