#include "ui/start_page/start_view.h"

#include "frame/start_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/strip.h"
#include "ui/controls/tool_bar.h"
#include "ui/guard.h"
#include "ui/start_page/file_chooser_view.h"
#include "ui/start_page/settings_view.h"
#include "ui/text.h"

#include <QAction>
#include <QHBoxLayout>
#include <QToolBar>

namespace quelvarn {

FormDB::FormDB(StartPage& model, QWidget* appearance)
    : model_(model), LabelDB_(new ShortLabel), chooser_(new FileChooser(model)),
      settings_(new Settings(model, appearance)), fileName_(new ShortLabel),
      pathName_(new ShortLabel(nullptr, Qt::ElideMiddle))
{
    setObjectName(QStringLiteral("FormDB"));
    auto* middle = new QHBoxLayout;
    middle->setContentsMargins(16, 12, 16, 12);
    middle->setSpacing(16);
    middle->addWidget(chooser_, 9);
    middle->addWidget(settings_, 10);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(newHeadingRow());
    layout->addWidget(newBar());
    layout->addLayout(middle, 1);
    layout->addWidget(newStatusRow());
    setFocusProxy(chooser_);
}

QWidget* FormDB::newHeadingRow()
{
    auto* row = new Strip(Strip::Kind::HeadingRow, "KopfDB");
    LabelDB_->setObjectName(QStringLiteral("LabelDB"));
    setRole(*LabelDB_, TextRole::Titel);
    row->layoutRow().setContentsMargins(4, 0, 16, 0);
    row->layoutRow().addWidget(LabelDB_, 1);
    row->layoutRow().addWidget(caption(QStringLiteral("Laufwerk, Ordner und Datei wählen, dann <Öffnen>"),
                                       TextRole::Small, QStringLiteral("LblAuswahlDB")));
    return row;
}

QWidget* FormDB::newBar()
{
    auto* row = new Strip(Strip::Kind::Bar, "LeisteDB");
    auto* bar = quelvarn::newBar("ToolbarDB", ButtonKind::TextBesideIcon);
    auto* open = addBarButton(*bar, {"Öffnen", "Öffnen", "Öffnen der Datenbank", ""});
    bar->widgetForAction(open)->setProperty("primary", true);
    open->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
    open->setShortcutContext(Qt::WindowShortcut);
    connect(open, &QAction::triggered, this, guardedSlot([this] {
                const BusyCursor wait;
                model_.open();
            }));
    auto* leave = addBarButton(*bar, {"Verlassen", "Verlassen", "Zurück zur Hauptform", "back"});
    connect(leave, &QAction::triggered, this, guardedSlot([this] { model_.leave(); }));
    row->layoutRow().addWidget(bar);
    return row;
}

QWidget* FormDB::newStatusRow()
{
    auto* row = new Strip(Strip::Kind::StatusRow, "StatusBarDB");
    fileName_->setObjectName(QStringLiteral("StatusBarDB(2)"));
    pathName_->setObjectName(QStringLiteral("StatusBarDB(4)"));
    row->layoutRow().addWidget(caption(QStringLiteral("Dateiname"), TextRole::Small, QStringLiteral("StatusBarDB(1)")));
    row->layoutRow().addWidget(fileName_);
    row->layoutRow().addSpacing(8);
    row->layoutRow().addWidget(caption(QStringLiteral("Pfadname"), TextRole::Small, QStringLiteral("StatusBarDB(3)")));
    row->layoutRow().addWidget(pathName_, 1);
    return row;
}

void FormDB::refresh()
{
    LabelDB_->setText(toQt(model_.LabelDB()));
    fileName_->setText(toQt(model_.fileNamePanel()));
    pathName_->setText(toQt(model_.pathNamePanel()));
    chooser_->refresh();
    settings_->refresh();
}

} // namespace quelvarn
