#include "ui/document_page/panels/search_panel.h"

#include "register/left_bar.h"
#include "ui/busy_pointer.h"
#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/document_page/panels/panel_parts.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace quelvarn {

namespace {

constexpr std::array<const char*, 3> FIELD_NAMES{"OpDokuBez", "OpDatei", "OpPfadDatei"};
constexpr std::array<const char*, 2> METHOD{"am Anfang", "beliebig"};

} // namespace

SearchPanel::SearchPanel(LeftBar& model)
    : model_(model), fields_(new QButtonGroup(this)), method_(new QButtonGroup(this)), CombSuchStr_(newCombSuchStr()),
      TextDocuBez_(newTextDocuBez()), ChDynSuchen_(newChDynSuchen()),
      LblFilterStep1_(caption({}, TextRole::Caption, QStringLiteral("LblFilterStep1")))
{
    setUpPanel(*this, "FrmSuchenFiltern");
    auto* texts = new QHBoxLayout;
    texts->addWidget(CombSuchStr_, 1);
    texts->addWidget(TextDocuBez_, 1);
    texts->addWidget(newButton("CmBeginnSuchen", QStringLiteral("&Suchen"), &SearchPanel::search));
    texts->addWidget(newButton("CmWeiterSuchen", QStringLiteral("&Weitersuchen"), &SearchPanel::searchOn));
    CmDokuDateiFiltern_ = newButton("CmDokuDateiFiltern", QStringLiteral("&Filtern"), &SearchPanel::filter);
    texts->addWidget(CmDokuDateiFiltern_);
    auto* options = new QHBoxLayout;
    buildOptions(*options);
    auto* below = new QHBoxLayout;
    below->addWidget(ChDynSuchen_);
    below->addStretch(1);
    below->addWidget(LblFilterStep1_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(6);
    for (QHBoxLayout* layoutRow : {texts, options, below})
        layout->addLayout(layoutRow);
}

QComboBox* SearchPanel::newCombSuchStr()
{
    auto* combo = new QComboBox;
    combo->setObjectName(QStringLiteral("CombSuchStr"));
    combo->setAccessibleName(QStringLiteral("Suchtext"));
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    combo->setMinimumContentsLength(10);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->lineEdit()->setObjectName(QStringLiteral("TextFocus"));
    combo->lineEdit()->setPlaceholderText(QStringLiteral("Suchtext"));
    connect(combo->lineEdit(), &QLineEdit::textEdited, this,
            guardedSlot([this](const QString& text) { textTyped(text); }));
    connect(combo->lineEdit(), &QLineEdit::returnPressed, this,
            guardedSlot([this] { searchText(CombSuchStr_->currentText()); }));
    connect(combo, &QComboBox::textActivated, this, guardedSlot([this](const QString& text) { searchText(text); }));
    return combo;
}

QLineEdit* SearchPanel::newTextDocuBez()
{
    auto* field = new QLineEdit;
    field->setObjectName(QStringLiteral("TextDocuBez"));
    field->setAccessibleName(QStringLiteral("Suchen beim Tippen"));
    field->setPlaceholderText(QStringLiteral("Suchen beim Tippen"));
    connect(field, &QLineEdit::textEdited, this,
            guardedSlot([this](const QString& text) { model_.search().type(fromQt(text)); }));
    return field;
}

QCheckBox* SearchPanel::newChDynSuchen()
{
    auto* box = newField<QCheckBox>("ChDynSuchen", QStringLiteral("Beim &Tippen suchen"));
    connect(box, &QCheckBox::clicked, this, guardedSlot([this](bool set) {
                {
                    const BusyCursor wait;
                    model_.search().setAtTyping(set);
                }
                refresh();
                takeFocus();
            }));
    return box;
}

QPushButton* SearchPanel::newButton(const char* name, const QString& text, void (SearchPanel::*act)())
{
    auto* button = newField<QPushButton>(name, text);
    connect(button, &QPushButton::clicked, this, guardedSlot([this, act] { (this->*act)(); }));
    return button;
}

void SearchPanel::buildOptions(QHBoxLayout& layoutRow)
{
    for (std::size_t field = 0; field < SEARCH_FIELDS.size(); ++field) {
        auto* option = newField<QRadioButton>(FIELD_NAMES[field], toQt(SEARCH_FIELDS[field].caption));
        fields_->addButton(option, static_cast<int>(field));
        layoutRow.addWidget(option);
    }
    layoutRow.addSpacing(12);
    layoutRow.addStretch(1);
    for (std::size_t kind = 0; kind < METHOD.size(); ++kind) {
        auto* option =
            newField<QRadioButton>(QStringLiteral("OptSuchPos(%1)").arg(kind), QString::fromUtf8(METHOD[kind]));
        method_->addButton(option, static_cast<int>(kind));
        layoutRow.addWidget(option);
    }
    connect(fields_, &QButtonGroup::idClicked, this, guardedSlot([this](int field) {
                const BusyCursor wait;
                model_.search().setField(static_cast<std::size_t>(field));
            }));
    connect(method_, &QButtonGroup::idClicked, this, guardedSlot([this](int kind) {
                model_.search().setMethod(static_cast<SearchMethod>(kind));
                takeFocus();
            }));
}

void SearchPanel::search()
{
    {
        const BusyCursor wait;
        model_.search().begin();
    }
    takeFocus();
}

void SearchPanel::searchOn()
{
    {
        const BusyCursor wait;
        model_.search().search();
    }
    takeFocus();
}

void SearchPanel::filter()
{
    const BusyCursor wait;
    model_.filter().textFilter();
}

void SearchPanel::searchText(const QString& text)
{
    {
        const BusyCursor wait;
        model_.search().searchText(fromQt(text));
    }
    takeFocus();
}

// A typed text that stands in the list is its entry, or the combo would tell a choice when it loses the focus.
void SearchPanel::textTyped(const QString& text)
{
    model_.search().setSearchText(fromQt(text));
    const QSignalBlocker still(CombSuchStr_);
    const int position = CombSuchStr_->lineEdit()->cursorPosition();
    CombSuchStr_->setCurrentIndex(CombSuchStr_->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    CombSuchStr_->setEditText(text);
    CombSuchStr_->lineEdit()->setCursorPosition(position);
}

void SearchPanel::takeFocus()
{
    if (!model_.search().atTyping())
        CombSuchStr_->setFocus();
    else
        TextDocuBez_->setFocus();
}

void SearchPanel::refresh()
{
    QuickSearch& search = model_.search();
    const bool atTyping = search.atTyping();
    showSearchTexts();
    if (TextDocuBez_->text() != toQt(search.TextDocuBez()))
        TextDocuBez_->setText(toQt(search.TextDocuBez()));
    CombSuchStr_->setEnabled(!atTyping);
    CombSuchStr_->setVisible(!atTyping);
    TextDocuBez_->setEnabled(atTyping);
    TextDocuBez_->setVisible(atTyping);
    CmDokuDateiFiltern_->setEnabled(!atTyping);
    ChDynSuchen_->setChecked(atTyping);
    fields_->button(static_cast<int>(search.searchField()))->setChecked(true);
    method_->button(search.method())->setChecked(true);
    showStep();
}

void SearchPanel::showSearchTexts()
{
    const QSignalBlocker still(CombSuchStr_);
    const std::vector<std::string>& texts = model_.search().searchTexts();
    bool same = CombSuchStr_->count() == static_cast<int>(texts.size());
    for (std::size_t i = 0; same && i < texts.size(); ++i)
        same = CombSuchStr_->itemText(static_cast<int>(i)) == toQt(texts[i]);
    if (!same) {
        CombSuchStr_->clear();
        for (const std::string& text : texts)
            CombSuchStr_->addItem(toQt(text));
    }
    const QString text = toQt(model_.search().CombSuchStr());
    const int entry = CombSuchStr_->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (CombSuchStr_->currentIndex() != entry)
        CombSuchStr_->setCurrentIndex(entry);
    if (CombSuchStr_->currentText() != text)
        CombSuchStr_->setEditText(text);
}

// The open question stands out, the answer does not.
void SearchPanel::showStep()
{
    LblFilterStep1_->setText(toQt(model_.filter().LblFilterStep1()));
    const QString textRole = model_.filter().step() == 1 ? QStringLiteral("warning") : QStringLiteral("value");
    if (LblFilterStep1_->property("role").toString() == textRole)
        return;
    LblFilterStep1_->setProperty("role", textRole);
    LblFilterStep1_->style()->unpolish(LblFilterStep1_);
    LblFilterStep1_->style()->polish(LblFilterStep1_);
}

} // namespace quelvarn
