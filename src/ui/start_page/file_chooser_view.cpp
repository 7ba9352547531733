#include "ui/start_page/file_chooser_view.h"

#include "frame/start_page.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/theme/icons.h"
#include "ui/value_text.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QListWidget>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>

namespace quelvarn {

namespace {

constexpr int ROLLE_PFAD = Qt::UserRole;

QString verbunden(const QString& ordner, const QString& name)
{
    return ordner.endsWith(u'\\') ? ordner + name : ordner + u'\\' + name;
}

QTreeWidgetItem* neuerOrdner(const QString& name, const QString& pfad, const char* bild)
{
    auto* eintrag = new QTreeWidgetItem({name});
    eintrag->setData(0, ROLLE_PFAD, pfad);
    eintrag->setIcon(0, symbol(bild, QPalette::PlaceholderText));
    eintrag->setToolTip(0, asTip(pfad));
    return eintrag;
}

} // namespace

Dateiwaehler::Dateiwaehler(StartPage& modell)
    : modell_(modell), DriveDB_(new QComboBox), TbUpDB_(new QToolButton), DirDB_(new QTreeWidget),
      FileDB_(new QListWidget)
{
    DriveDB_->setObjectName(QStringLiteral("DriveDB"));
    DriveDB_->setAccessibleName(QStringLiteral("Laufwerk"));
    TbUpDB_->setObjectName(QStringLiteral("TbUpDB"));
    TbUpDB_->setText(QStringLiteral("Nach oben"));
    TbUpDB_->setIcon(symbol("folder-up"));
    TbUpDB_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    DirDB_->setObjectName(QStringLiteral("DirDB"));
    DirDB_->setAccessibleName(QStringLiteral("Ordner"));
    DirDB_->setHeaderHidden(true);
    DirDB_->setRootIsDecorated(false);
    DirDB_->setItemsExpandable(false);
    DirDB_->setProperty("rahmen", true);
    FileDB_->setObjectName(QStringLiteral("FileDB"));
    FileDB_->setAccessibleName(QStringLiteral("Datenbank"));
    FileDB_->setProperty("rahmen", true);
    FileDB_->setIconSize({16, 16});

    auto* aufbau = new QGridLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setVerticalSpacing(6);
    aufbau->addWidget(DriveDB_, 0, 0);
    aufbau->addWidget(TbUpDB_, 0, 1);
    aufbau->addWidget(DirDB_, 1, 0, 1, 2);
    aufbau->addWidget(FileDB_, 2, 0, 1, 2);
    aufbau->setColumnStretch(0, 1);
    aufbau->setRowStretch(1, 3);
    aufbau->setRowStretch(2, 2);
    setFocusProxy(FileDB_);
    verbinde();
}

void Dateiwaehler::verbinde()
{
    connect(DriveDB_, &QComboBox::textActivated, this,
            bewacht([this](const QString& eintrag) { modell_.laufwerkGewaehlt(ausQt(eintrag)); }));
    connect(TbUpDB_, &QToolButton::clicked, this, bewacht([this] { modell_.nachOben(); }));
    connect(DirDB_, &QTreeWidget::itemActivated, this, bewacht([this](QTreeWidgetItem* eintrag, int) {
                modell_.ordnerGewaehlt(ausQt(eintrag->data(0, ROLLE_PFAD).toString()));
            }));
    // A click picks a file, and so does Enter; a double click is not two picks.
    connect(FileDB_, &QListWidget::itemClicked, this,
            bewacht([this](QListWidgetItem* eintrag) { modell_.dateiGewaehlt(ausQt(eintrag->text())); }));
    auto* eingabe = new QAction(FileDB_);
    eingabe->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    eingabe->setShortcutContext(Qt::WidgetShortcut);
    FileDB_->addAction(eingabe);
    connect(eingabe, &QAction::triggered, this, bewacht([this] {
                if (const auto* eintrag = FileDB_->currentItem())
                    modell_.dateiGewaehlt(ausQt(eintrag->text()));
            }));
}

void Dateiwaehler::zeigen()
{
    zeigeLaufwerke();
    zeigeOrdner();
    zeigeDateien();
}

void Dateiwaehler::zeigeLaufwerke()
{
    const QSignalBlocker still(DriveDB_);
    const auto& auswahl = modell_.auswahl();
    if (laufwerke_ != auswahl.laufwerke()) {
        laufwerke_ = auswahl.laufwerke();
        DriveDB_->clear();
        for (const auto& eintrag : laufwerke_)
            DriveDB_->addItem(symbol("drive", QPalette::PlaceholderText), zuQt(eintrag));
    }
    DriveDB_->setCurrentIndex(DriveDB_->findText(zuQt(auswahl.laufwerk())));
}

// The folders above the one that is open, and those in it.
void Dateiwaehler::zeigeOrdner()
{
    const auto& auswahl = modell_.auswahl();
    if (ordner_ == auswahl.ordner() && unterordner_ == auswahl.unterordner())
        return;
    ordner_ = auswahl.ordner();
    unterordner_ = auswahl.unterordner();
    const QSignalBlocker still(DirDB_);
    DirDB_->clear();
    QTreeWidgetItem* offen = nullptr;
    QString pfad;
    const auto teile = zuQt(ordner_).split(u'\\', Qt::SkipEmptyParts);
    for (const QString& teil : teile) {
        pfad = pfad.isEmpty() ? teil + u'\\' : verbunden(pfad, teil);
        auto* eintrag = neuerOrdner(offen == nullptr ? pfad : teil, pfad, "folder-open");
        if (offen == nullptr)
            DirDB_->addTopLevelItem(eintrag);
        else
            offen->addChild(eintrag);
        offen = eintrag;
    }
    if (offen == nullptr)
        return;
    for (const auto& name : unterordner_)
        offen->addChild(neuerOrdner(zuQt(name), verbunden(pfad, zuQt(name)), "folder"));
    DirDB_->expandAll();
    DirDB_->setCurrentItem(offen);
    DirDB_->scrollToItem(offen, QAbstractItemView::PositionAtTop);
}

void Dateiwaehler::zeigeDateien()
{
    const QSignalBlocker still(FileDB_);
    const auto& auswahl = modell_.auswahl();
    if (dateien_ != auswahl.dateien()) {
        dateien_ = auswahl.dateien();
        FileDB_->clear();
        for (const auto& name : dateien_)
            new QListWidgetItem(symbol("database", QPalette::PlaceholderText), zuQt(name), FileDB_);
    }
    const auto gewaehlt = std::find(dateien_.begin(), dateien_.end(), auswahl.datei());
    FileDB_->setCurrentRow(gewaehlt == dateien_.end() ? -1 : static_cast<int>(gewaehlt - dateien_.begin()));
}

} // namespace quelvarn
