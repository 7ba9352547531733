#include "ui/main_window/status_bar_update.h"

#include "database/document_types.h"
#include "frame/main_window.h"
#include "ui/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace quelvarn {

namespace {

// An indicator stands behind each text but the first.
bool isDisplay(std::size_t position)
{
    return position >= 2 && position % 2 == 0;
}

} // namespace

StatusBarUpdate::StatusBarUpdate() : Strip(Kind::StatusRow, "StatusBarUpdate") {}

void StatusBarUpdate::refresh(const MainWindow& model)
{
    if (built_ == model.statusPanel())
        return;
    build(model.statusPanel());
    showChanges(changes_);
}

void StatusBarUpdate::build(const std::vector<std::string>& texts)
{
    built_ = texts;
    panels_.clear();
    while (auto* part = layoutRow().takeAt(0)) {
        delete part->widget();
        delete part;
    }
    const bool withDisplays = texts.size() > 2;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const bool display = withDisplays && isDisplay(i);
        auto* panel = caption(toQt(texts[i]), TextRole::Small, QStringLiteral("StatusBarUpdate(%1)").arg(i + 1));
        if (display) {
            panel->setProperty("role", QStringLiteral("indicator"));
            panel->setFixedHeight(15);
            panel->setMinimumWidth(32);
            panel->setAlignment(Qt::AlignCenter);
            panel->setAccessibleName(toQt(texts[0]) + toQt(texts[i - 1]));
        } else if (i > 0) {
            layoutRow().addSpacing(8);
        }
        panels_.push_back(panel);
        layoutRow().addWidget(panel);
    }
    layoutRow().addStretch(1);
}

void StatusBarUpdate::showChanges(const std::array<std::string, 5>& texts)
{
    changes_ = texts;
    for (std::size_t tab = 0; tab < texts.size(); ++tab) {
        const auto position = static_cast<std::size_t>(DOCUMENT_TYPES[tab].indicatorPanel) - 1;
        if (position >= panels_.size())
            return;
        QLabel& display = *panels_[position];
        display.setText(toQt(texts[tab]));
        const bool full = !texts[tab].empty();
        if (display.property("full").toBool() == full)
            continue;
        display.setProperty("full", full);
        style()->unpolish(&display);
        style()->polish(&display);
    }
}

} // namespace quelvarn
