#include "ui/controls/value_list.h"

#include "ui/controls/click_choice.h"
#include "ui/controls/value_model.h"

namespace quelvarn {

ValueField::ValueField(const QString& name) : model_(new ValueModel(this))
{
    setObjectName(name);
    setModel(model_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setProperty("framed", true);
    choosesByClick(*this, [this](const QModelIndex& position) {
        if (chosen)
            chosen(std::string(model_->value(position.row()))); // A copy: the pick may fill the list anew.
    });
}

void ValueField::display(const std::vector<std::string>& values)
{
    model_->display(values);
}

void ValueField::mark(const std::string& value)
{
    const QModelIndex position = model_->index(model_->row(value));
    if (position != currentIndex())
        setCurrentIndex(position);
    if (!position.isValid())
        clearSelection();
}

} // namespace quelvarn
