#include "ui/start_page/settings_view.h"

#include "frame/start_page.h"
#include "session/tree_switches.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quelvarn {

// A frame with switches of the property tree, which stand in TREE_SWITCHES from `first` on.
struct OptionGroup
{
    const char* frame;
    const char* title;
    const char* field;
    int first;
    int count;
    int columns;
    void (StartPage::*set)(int, bool);
};

namespace {

constexpr std::array<OptionGroup, 2> OPTION_GROUPS{{
    {"Frame1", "Informationseinstellungen der TREEVIEW", "ChInfoPrio1", 0, INFO_PRIO_1_COUNT, 1,
     &StartPage::setInfoPrio1},
    {"Frame2", "Informationen in der TREEVIEW anzeigen (sofern vorhanden)", "ChInfoPrio2", INFO_PRIO_1_COUNT,
     static_cast<int>(TREE_SWITCHES.size()) - INFO_PRIO_1_COUNT, 2, &StartPage::setInfoPrio2},
}};

} // namespace

Settings::Settings(StartPage& model, QWidget* appearance)
    : model_(model), version_(new ShortLabel), path_(new ShortLabel(nullptr, Qt::ElideMiddle)),
      FrmActiveSE_(newActiveSE())
{
    auto* below = new QHBoxLayout;
    below->addWidget(newOfflinePlot(), 1);
    below->addWidget(newOfflineOrder(), 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    layout->addWidget(newSolidEdge());
    layout->addWidget(FrmActiveSE_);
    layout->addWidget(newSwitches(OPTION_GROUPS[0], ChInfoPrio1_));
    layout->addWidget(newSwitches(OPTION_GROUPS[1], ChInfoPrio2_));
    layout->addLayout(below);
    layout->addWidget(appearance);
    layout->addStretch(1);
}

QWidget* Settings::newSolidEdge()
{
    auto* part = new QWidget;
    auto* layout = new QVBoxLayout(part);
    layout->setContentsMargins(2, 0, 2, 2);
    layout->setSpacing(2);
    version_->setObjectName(QStringLiteral("LblSolidEdgeVersion"));
    setRole(*version_, TextRole::Heading);
    path_->setObjectName(QStringLiteral("LblSolidEdgePfad"));
    setRole(*path_, TextRole::Caption);
    layout->addWidget(version_);
    layout->addWidget(path_);
    return part;
}

QGroupBox* Settings::newActiveSE()
{
    auto* frame = newField<QGroupBox>("FrmActiveSE", QStringLiteral("Einfügen Baugr./Plazieren Zchn. ist aktiv?"));
    TggBtActiveSE_ = newField<QPushButton>("TggBtActiveSE", QStringLiteral("Ereignis"));
    TggBtActiveSE_->setCheckable(true);
    LblActiveSE_ = caption({}, TextRole::Caption, QStringLiteral("LblActiveSE"));
    auto* layoutRow = new QHBoxLayout(frame);
    layoutRow->addWidget(TggBtActiveSE_);
    layoutRow->addWidget(LblActiveSE_, 1);
    connect(TggBtActiveSE_, &QPushButton::clicked, this, guardedSlot([this](bool on) { model_.setActiveSE(on); }));
    return frame;
}

QGroupBox* Settings::newSwitches(const OptionGroup& group, std::vector<QCheckBox*>& boxes)
{
    auto* frame = newField<QGroupBox>(group.frame, QLatin1String(group.title));
    auto* layout = new QGridLayout(frame);
    layout->setVerticalSpacing(4);
    const int rows = (group.count + group.columns - 1) / group.columns;
    for (int i = 0; i < group.count; ++i) {
        const int row = group.first + i;
        auto* box = newField<QCheckBox>(QStringLiteral("%1(%2)").arg(QLatin1String(group.field)).arg(i),
                                        toQt(TREE_SWITCHES[static_cast<std::size_t>(row)].caption));
        connect(box, &QCheckBox::clicked, this,
                guardedSlot([&model = model_, i, set = group.set](bool on) { (model.*set)(i, on); }));
        boxes.push_back(box);
        layout->addWidget(box, i % rows, i / rows);
    }
    return frame;
}

QGroupBox* Settings::newOfflinePlot()
{
    auto* frame = newField<QGroupBox>("FrmOfflinePlot", QStringLiteral("Offline-Plotten"));
    auto* layout = new QHBoxLayout;
    for (std::size_t i = 0; i < OFFLINE_TOOLS.size(); ++i) {
        auto* option = newField<QRadioButton>(QStringLiteral("OpOfflinePlot(%1)").arg(i),
                                              QStringLiteral("mit ") + toQt(OFFLINE_TOOLS[i]));
        const int index = static_cast<int>(i);
        connect(option, &QRadioButton::clicked, this,
                guardedSlot([this, index](bool) { model_.offlineToolChosen(index); }));
        OpOfflinePlot_.push_back(option);
        layout->addWidget(option);
    }
    frame->setLayout(layout);
    return frame;
}

QGroupBox* Settings::newOfflineOrder()
{
    auto* frame = newField<QGroupBox>("FrmOfflineOrder", QStringLiteral("Offline/Versenden"));
    ChLocalOrder_ = newField<QCheckBox>("ChLocalOrder", QStringLiteral("Aufträge lokal speichern"));
    connect(ChLocalOrder_, &QCheckBox::clicked, this, guardedSlot([this](bool on) { model_.setLocalOrders(on); }));
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(ChLocalOrder_);
    return frame;
}

void Settings::refresh()
{
    version_->setText(toQt(model_.LblSolidEdgeVersion()));
    path_->setText(toQt(model_.LblSolidEdgePfad()));
    FrmActiveSE_->setVisible(model_.cadEventsVisible());
    FrmActiveSE_->setEnabled(model_.cadEventsReady());
    showSet(*TggBtActiveSE_, model_.activeSE());
    LblActiveSE_->setText(toQt(model_.LblActiveSE()));
    for (std::size_t i = 0; i < ChInfoPrio1_.size(); ++i)
        showSet(*ChInfoPrio1_[i], model_.infoPrio1(static_cast<int>(i)));
    for (std::size_t i = 0; i < ChInfoPrio2_.size(); ++i)
        showSet(*ChInfoPrio2_[i], model_.infoPrio2(static_cast<int>(i)));
    for (std::size_t i = 0; i < OpOfflinePlot_.size(); ++i)
        showSet(*OpOfflinePlot_[i], model_.offlineTool() == static_cast<int>(i));
    showSet(*ChLocalOrder_, model_.localOrders());
}

} // namespace quelvarn
