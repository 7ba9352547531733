#include "ui/controls/progress_field.h"

#include "ui/controls/strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>
#include <vector>

namespace quelvarn {

namespace {

constexpr int TICKS = 1000;

std::vector<ProgressField*>& allFields()
{
    static std::vector<ProgressField*> fields;
    return fields;
}

} // namespace

ProgressField::ProgressField(const char* bar, const char* text, const char* cancel)
    : text_(caption({}, TextRole::Caption, QLatin1String(text))), bar_(new QProgressBar),
      cancel_(new QPushButton(QStringLiteral("Abbrechen")))
{
    bar_->setObjectName(QLatin1String(bar));
    bar_->setRange(0, TICKS);
    bar_->setTextVisible(false);
    bar_->setMinimumWidth(120);
    cancel_->setObjectName(QLatin1String(cancel));
    cancel_->setFocusPolicy(Qt::NoFocus); // Esc does the same, and the focus stays where it was.
    auto* layoutRow = new QHBoxLayout(this);
    layoutRow->setContentsMargins({});
    layoutRow->addWidget(text_);
    layoutRow->addWidget(bar_, 1);
    layoutRow->addWidget(cancel_);
    hide();
    allFields().push_back(this);
}

ProgressField::~ProgressField()
{
    std::erase(allFields(), this);
}

ProgressField* ProgressField::borrowed()
{
    const auto& fields = allFields();
    const auto field = std::find_if(fields.begin(), fields.end(), [](const ProgressField* candidate) {
        return candidate->lent_ && candidate->parentWidget() != nullptr && candidate->parentWidget()->isVisible();
    });
    return field != fields.end() ? *field : nullptr;
}

void ProgressField::setText(const QString& text)
{
    text_->setText(text);
}

void ProgressField::showStand(std::size_t done, std::size_t total)
{
    const double share = total > 0 ? static_cast<double>(std::min(done, total)) / static_cast<double>(total) : 0;
    bar_->setValue(static_cast<int>(share * TICKS));
}

} // namespace quelvarn
