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

constexpr std::array<const char*, 3> FELDNAMEN{"OpDokuBez", "OpDatei", "OpPfadDatei"};
constexpr std::array<const char*, 2> VERFAHREN{"am Anfang", "beliebig"};

} // namespace

Suchpanel::Suchpanel(LinkeLeiste& modell)
    : modell_(modell), felder_(new QButtonGroup(this)), verfahren_(new QButtonGroup(this)),
      CombSuchStr_(neuesCombSuchStr()), TextDocuBez_(neuesTextDocuBez()), ChDynSuchen_(neuesChDynSuchen()),
      LblFilterStep1_(beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblFilterStep1")))
{
    richtePanelEin(*this, "FrmSuchenFiltern");
    auto* texte = new QHBoxLayout;
    texte->addWidget(CombSuchStr_, 1);
    texte->addWidget(TextDocuBez_, 1);
    texte->addWidget(neuerKnopf("CmBeginnSuchen", QStringLiteral("&Suchen"), &Suchpanel::suchen));
    texte->addWidget(neuerKnopf("CmWeiterSuchen", QStringLiteral("&Weitersuchen"), &Suchpanel::weitersuchen));
    CmDokuDateiFiltern_ = neuerKnopf("CmDokuDateiFiltern", QStringLiteral("&Filtern"), &Suchpanel::filtern);
    texte->addWidget(CmDokuDateiFiltern_);
    auto* optionen = new QHBoxLayout;
    baueOptionen(*optionen);
    auto* unten = new QHBoxLayout;
    unten->addWidget(ChDynSuchen_);
    unten->addStretch(1);
    unten->addWidget(LblFilterStep1_);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(8, 8, 8, 8);
    aufbau->setSpacing(6);
    for (QHBoxLayout* reihe : {texte, optionen, unten})
        aufbau->addLayout(reihe);
}

QComboBox* Suchpanel::neuesCombSuchStr()
{
    auto* kombo = new QComboBox;
    kombo->setObjectName(QStringLiteral("CombSuchStr"));
    kombo->setAccessibleName(QStringLiteral("Suchtext"));
    kombo->setEditable(true);
    kombo->setInsertPolicy(QComboBox::NoInsert);
    kombo->setCompleter(nullptr);
    kombo->setMinimumContentsLength(10);
    kombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    kombo->lineEdit()->setObjectName(QStringLiteral("TextFocus"));
    kombo->lineEdit()->setPlaceholderText(QStringLiteral("Suchtext"));
    connect(kombo->lineEdit(), &QLineEdit::textEdited, this,
            bewacht([this](const QString& text) { textGetippt(text); }));
    connect(kombo->lineEdit(), &QLineEdit::returnPressed, this,
            bewacht([this] { sucheText(CombSuchStr_->currentText()); }));
    connect(kombo, &QComboBox::textActivated, this, bewacht([this](const QString& text) { sucheText(text); }));
    return kombo;
}

QLineEdit* Suchpanel::neuesTextDocuBez()
{
    auto* feld = new QLineEdit;
    feld->setObjectName(QStringLiteral("TextDocuBez"));
    feld->setAccessibleName(QStringLiteral("Suchen beim Tippen"));
    feld->setPlaceholderText(QStringLiteral("Suchen beim Tippen"));
    connect(feld, &QLineEdit::textEdited, this,
            bewacht([this](const QString& text) { modell_.suche().tippe(ausQt(text)); }));
    return feld;
}

QCheckBox* Suchpanel::neuesChDynSuchen()
{
    auto* kasten = neuesFeld<QCheckBox>("ChDynSuchen", QStringLiteral("Beim &Tippen suchen"));
    connect(kasten, &QCheckBox::clicked, this, bewacht([this](bool gesetzt) {
                {
                    const Sanduhr warten;
                    modell_.suche().setzeBeimTippen(gesetzt);
                }
                zeigen();
                nimmFokus();
            }));
    return kasten;
}

QPushButton* Suchpanel::neuerKnopf(const char* name, const QString& text, void (Suchpanel::*tue)())
{
    auto* knopf = neuesFeld<QPushButton>(name, text);
    connect(knopf, &QPushButton::clicked, this, bewacht([this, tue] { (this->*tue)(); }));
    return knopf;
}

void Suchpanel::baueOptionen(QHBoxLayout& reihe)
{
    for (std::size_t feld = 0; feld < SUCHFELDER.size(); ++feld) {
        auto* option = neuesFeld<QRadioButton>(FELDNAMEN[feld], zuQt(SUCHFELDER[feld].benennung));
        felder_->addButton(option, static_cast<int>(feld));
        reihe.addWidget(option);
    }
    reihe.addSpacing(12);
    reihe.addStretch(1);
    for (std::size_t art = 0; art < VERFAHREN.size(); ++art) {
        auto* option =
            neuesFeld<QRadioButton>(QStringLiteral("OptSuchPos(%1)").arg(art), QString::fromUtf8(VERFAHREN[art]));
        verfahren_->addButton(option, static_cast<int>(art));
        reihe.addWidget(option);
    }
    connect(felder_, &QButtonGroup::idClicked, this, bewacht([this](int feld) {
                const Sanduhr warten;
                modell_.suche().setzeFeld(static_cast<std::size_t>(feld));
            }));
    connect(verfahren_, &QButtonGroup::idClicked, this, bewacht([this](int art) {
                modell_.suche().setzeVerfahren(static_cast<Suchverfahren>(art));
                nimmFokus();
            }));
}

void Suchpanel::suchen()
{
    {
        const Sanduhr warten;
        modell_.suche().beginne();
    }
    nimmFokus();
}

void Suchpanel::weitersuchen()
{
    {
        const Sanduhr warten;
        modell_.suche().suche();
    }
    nimmFokus();
}

void Suchpanel::filtern()
{
    const Sanduhr warten;
    modell_.filter().textFiltern();
}

void Suchpanel::sucheText(const QString& text)
{
    {
        const Sanduhr warten;
        modell_.suche().sucheText(ausQt(text));
    }
    nimmFokus();
}

// A typed text that stands in the list is its entry, or the combo would tell a choice when it loses the focus.
void Suchpanel::textGetippt(const QString& text)
{
    modell_.suche().setzeSuchtext(ausQt(text));
    const QSignalBlocker still(CombSuchStr_);
    const int stelle = CombSuchStr_->lineEdit()->cursorPosition();
    CombSuchStr_->setCurrentIndex(CombSuchStr_->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    CombSuchStr_->setEditText(text);
    CombSuchStr_->lineEdit()->setCursorPosition(stelle);
}

void Suchpanel::nimmFokus()
{
    if (!modell_.suche().beimTippen())
        CombSuchStr_->setFocus();
    else
        TextDocuBez_->setFocus();
}

void Suchpanel::zeigen()
{
    Schnellsuche& suche = modell_.suche();
    const bool beimTippen = suche.beimTippen();
    zeigeSuchtexte();
    if (TextDocuBez_->text() != zuQt(suche.TextDocuBez()))
        TextDocuBez_->setText(zuQt(suche.TextDocuBez()));
    CombSuchStr_->setEnabled(!beimTippen);
    CombSuchStr_->setVisible(!beimTippen);
    TextDocuBez_->setEnabled(beimTippen);
    TextDocuBez_->setVisible(beimTippen);
    CmDokuDateiFiltern_->setEnabled(!beimTippen);
    ChDynSuchen_->setChecked(beimTippen);
    felder_->button(static_cast<int>(suche.suchfeld()))->setChecked(true);
    verfahren_->button(suche.verfahren())->setChecked(true);
    zeigeSchritt();
}

void Suchpanel::zeigeSuchtexte()
{
    const QSignalBlocker still(CombSuchStr_);
    const std::vector<std::string>& texte = modell_.suche().suchtexte();
    bool dieselben = CombSuchStr_->count() == static_cast<int>(texte.size());
    for (std::size_t i = 0; dieselben && i < texte.size(); ++i)
        dieselben = CombSuchStr_->itemText(static_cast<int>(i)) == zuQt(texte[i]);
    if (!dieselben) {
        CombSuchStr_->clear();
        for (const std::string& text : texte)
            CombSuchStr_->addItem(zuQt(text));
    }
    const QString text = zuQt(modell_.suche().CombSuchStr());
    const int eintrag = CombSuchStr_->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (CombSuchStr_->currentIndex() != eintrag)
        CombSuchStr_->setCurrentIndex(eintrag);
    if (CombSuchStr_->currentText() != text)
        CombSuchStr_->setEditText(text);
}

// The open question stands out, the answer does not.
void Suchpanel::zeigeSchritt()
{
    LblFilterStep1_->setText(zuQt(modell_.filter().LblFilterStep1()));
    const QString rolle = modell_.filter().schritt() == 1 ? QStringLiteral("warnung") : QStringLiteral("wert");
    if (LblFilterStep1_->property("rolle").toString() == rolle)
        return;
    LblFilterStep1_->setProperty("rolle", rolle);
    LblFilterStep1_->style()->unpolish(LblFilterStep1_);
    LblFilterStep1_->style()->polish(LblFilterStep1_);
}

} // namespace quelvarn
