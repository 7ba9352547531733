#include "ui/controls/value_list.h"

#include "ui/controls/click_choice.h"
#include "ui/controls/value_model.h"

namespace quelvarn {

Wertefeld::Wertefeld(const QString& name) : modell_(new Wertemodell(this))
{
    setObjectName(name);
    setModel(modell_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setProperty("rahmen", true);
    waehltPerKlick(*this, [this](const QModelIndex& stelle) {
        if (gewaehlt)
            gewaehlt(std::string(modell_->wert(stelle.row()))); // A copy: the pick may fill the list anew.
    });
}

void Wertefeld::zeige(const std::vector<std::string>& werte)
{
    modell_->zeige(werte);
}

void Wertefeld::markiere(const std::string& wert)
{
    const QModelIndex stelle = modell_->index(modell_->zeile(wert));
    if (stelle != currentIndex())
        setCurrentIndex(stelle);
    if (!stelle.isValid())
        clearSelection();
}

} // namespace quelvarn
