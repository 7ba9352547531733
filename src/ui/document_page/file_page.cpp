#include "ui/document_page/file_page.h"

#include "register/info_panel.h"
#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/controls/wrapping_label.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

namespace quelvarn {

namespace {

struct Row
{
    const char* heading;
    std::string FileProperties::*field;
};

// LblDat(0) is the first caption, LblDat(1) its value, and so on.
constexpr std::array<Row, 6> ROWS{{
    {"Name", &FileProperties::name},
    {"Ordner", &FileProperties::folder},
    {"Größe", &FileProperties::size},
    {"Erstellt", &FileProperties::created},
    {"Geändert", &FileProperties::changed},
    {"Letzter Zugriff", &FileProperties::accessed},
}};

} // namespace

FileView::FileView(InfoPanel& model)
    : model_(model),
      ChDatReadOnly_(newBox("ChDatReadOnly", QStringLiteral("Schreibgeschützt"), &InfoPanel::setReadOnly)),
      ChDatArchiv_(newBox("ChDatArchiv", QStringLiteral("Archiv"), &InfoPanel::setArchive))
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 8, 12, 8);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(3);
    grid->setColumnStretch(1, 1);
    grid->addWidget(caption(QStringLiteral("Dateieigenschaften"), TextRole::Heading), 0, 0, 1, 2);
    grid->setRowMinimumHeight(1, 5);
    int layoutRow = 2;
    for (std::size_t i = 0; i < ROWS.size(); ++i, ++layoutRow) {
        auto* heading =
            caption(QString::fromUtf8(ROWS[i].heading), TextRole::Caption, QStringLiteral("LblDat(%1)").arg(2 * i));
        values_[i] = new WrappingLabel;
        values_[i]->setObjectName(QStringLiteral("LblDat(%1)").arg(2 * i + 1));
        grid->addWidget(heading, layoutRow, 0, Qt::AlignTop);
        grid->addWidget(values_[i], layoutRow, 1);
    }
    grid->setRowMinimumHeight(layoutRow, 13);
    grid->addWidget(separatorLine(), layoutRow++, 0, 1, 2, Qt::AlignVCenter);
    grid->addWidget(caption(QStringLiteral("Attribute"), TextRole::Caption), layoutRow, 0);
    grid->addWidget(ChDatReadOnly_, layoutRow++, 1);
    grid->addWidget(ChDatArchiv_, layoutRow++, 1);
    grid->setRowStretch(layoutRow, 1);
}

QCheckBox* FileView::newBox(const char* name, const QString& text, void (InfoPanel::*set)(bool))
{
    auto* box = newField<QCheckBox>(name, text);
    connect(box, &QCheckBox::clicked, this, guardedSlot([&model = model_, set](bool on) { (model.*set)(on); }));
    return box;
}

void FileView::refresh()
{
    const FileProperties& page = model_.file();
    for (std::size_t i = 0; i < ROWS.size(); ++i)
        values_[i]->setText(toQt(page.*ROWS[i].field));
    for (const auto& [box, on] : {std::pair(ChDatReadOnly_, page.readOnly), {ChDatArchiv_, page.archive}}) {
        box->setEnabled(page.exists);
        showSet(*box, on);
    }
}

} // namespace quelvarn
