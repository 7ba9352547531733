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

constexpr int ROLE_PATH = Qt::UserRole;

QString connected(const QString& folder, const QString& name)
{
    return folder.endsWith(u'\\') ? folder + name : folder + u'\\' + name;
}

QTreeWidgetItem* newFolder(const QString& name, const QString& documentPath, const char* picture)
{
    auto* entry = new QTreeWidgetItem({name});
    entry->setData(0, ROLE_PATH, documentPath);
    entry->setIcon(0, icon(picture, QPalette::PlaceholderText));
    entry->setToolTip(0, asTip(documentPath));
    return entry;
}

} // namespace

FileChooser::FileChooser(StartPage& model)
    : model_(model), DriveDB_(new QComboBox), TbUpDB_(new QToolButton), DirDB_(new QTreeWidget),
      FileDB_(new QListWidget)
{
    DriveDB_->setObjectName(QStringLiteral("DriveDB"));
    DriveDB_->setAccessibleName(QStringLiteral("Laufwerk"));
    TbUpDB_->setObjectName(QStringLiteral("TbUpDB"));
    TbUpDB_->setText(QStringLiteral("Nach oben"));
    TbUpDB_->setIcon(icon("folder-up"));
    TbUpDB_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    DirDB_->setObjectName(QStringLiteral("DirDB"));
    DirDB_->setAccessibleName(QStringLiteral("Ordner"));
    DirDB_->setHeaderHidden(true);
    DirDB_->setRootIsDecorated(false);
    DirDB_->setItemsExpandable(false);
    DirDB_->setProperty("framed", true);
    FileDB_->setObjectName(QStringLiteral("FileDB"));
    FileDB_->setAccessibleName(QStringLiteral("Datenbank"));
    FileDB_->setProperty("framed", true);
    FileDB_->setIconSize({16, 16});

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->setVerticalSpacing(6);
    layout->addWidget(DriveDB_, 0, 0);
    layout->addWidget(TbUpDB_, 0, 1);
    layout->addWidget(DirDB_, 1, 0, 1, 2);
    layout->addWidget(FileDB_, 2, 0, 1, 2);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(1, 3);
    layout->setRowStretch(2, 2);
    setFocusProxy(FileDB_);
    connectControls();
}

void FileChooser::connectControls()
{
    connect(DriveDB_, &QComboBox::textActivated, this,
            guardedSlot([this](const QString& entry) { model_.driveChosen(fromQt(entry)); }));
    connect(TbUpDB_, &QToolButton::clicked, this, guardedSlot([this] { model_.upwards(); }));
    connect(DirDB_, &QTreeWidget::itemActivated, this, guardedSlot([this](QTreeWidgetItem* entry, int) {
                model_.folderChosen(fromQt(entry->data(0, ROLE_PATH).toString()));
            }));
    // A click picks a file, and so does Enter; a double click is not two picks.
    connect(FileDB_, &QListWidget::itemClicked, this,
            guardedSlot([this](QListWidgetItem* entry) { model_.fileChosen(fromQt(entry->text())); }));
    auto* input = new QAction(FileDB_);
    input->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    input->setShortcutContext(Qt::WidgetShortcut);
    FileDB_->addAction(input);
    connect(input, &QAction::triggered, this, guardedSlot([this] {
                if (const auto* entry = FileDB_->currentItem())
                    model_.fileChosen(fromQt(entry->text()));
            }));
}

void FileChooser::refresh()
{
    showDrives();
    showFolder();
    showFiles();
}

void FileChooser::showDrives()
{
    const QSignalBlocker still(DriveDB_);
    const auto& selection = model_.selection();
    if (drives_ != selection.drives()) {
        drives_ = selection.drives();
        DriveDB_->clear();
        for (const auto& entry : drives_)
            DriveDB_->addItem(icon("drive", QPalette::PlaceholderText), toQt(entry));
    }
    DriveDB_->setCurrentIndex(DriveDB_->findText(toQt(selection.drive())));
}

// The folders above the one that is open, and those in it.
void FileChooser::showFolder()
{
    const auto& selection = model_.selection();
    if (folder_ == selection.folder() && subfolder_ == selection.subfolder())
        return;
    folder_ = selection.folder();
    subfolder_ = selection.subfolder();
    const QSignalBlocker still(DirDB_);
    DirDB_->clear();
    QTreeWidgetItem* open = nullptr;
    QString documentPath;
    const auto parts = toQt(folder_).split(u'\\', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        documentPath = documentPath.isEmpty() ? part + u'\\' : connected(documentPath, part);
        auto* entry = newFolder(open == nullptr ? documentPath : part, documentPath, "folder-open");
        if (open == nullptr)
            DirDB_->addTopLevelItem(entry);
        else
            open->addChild(entry);
        open = entry;
    }
    if (open == nullptr)
        return;
    for (const auto& name : subfolder_)
        open->addChild(newFolder(toQt(name), connected(documentPath, toQt(name)), "folder"));
    DirDB_->expandAll();
    DirDB_->setCurrentItem(open);
    DirDB_->scrollToItem(open, QAbstractItemView::PositionAtTop);
}

void FileChooser::showFiles()
{
    const QSignalBlocker still(FileDB_);
    const auto& selection = model_.selection();
    if (files_ != selection.files()) {
        files_ = selection.files();
        FileDB_->clear();
        for (const auto& name : files_)
            new QListWidgetItem(icon("database", QPalette::PlaceholderText), toQt(name), FileDB_);
    }
    const auto chosen = std::find(files_.begin(), files_.end(), selection.file());
    FileDB_->setCurrentRow(chosen == files_.end() ? -1 : static_cast<int>(chosen - files_.begin()));
}

} // namespace quelvarn
