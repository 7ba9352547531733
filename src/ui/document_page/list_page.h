#pragma once

#include "ui/controls/grid_model.h"

#include <QWidget>

#include <functional>
#include <string_view>
#include <vector>

class QHBoxLayout;
class QVBoxLayout;

namespace quelvarn {

class InfoPanel;
class Gitter;
enum class InfoSeite : int;

// An information page that is a titled grid over a list of the model, with little around it.
class Listenseite : public QWidget
{
    Q_OBJECT

public:
    // The grid: its name, columns and their shares of the width.
    Listenseite(InfoPanel& modell, InfoSeite seite, const QString& titel, std::string_view gitter,
                std::vector<Gitterspalte> spalten, std::vector<int> anteile);

    InfoSeite seite() const { return seite_; }
    QVBoxLayout& aufbau() { return *aufbau_; }
    QHBoxLayout& neueReihe();
    // Each brings a control around the grid up to date.
    void folge(std::function<void()> schritt) { schritte_.push_back(std::move(schritt)); }
    // A long cell of the current row stands under the grid as a whole.
    void zeigeGanz(std::string_view feld);
    // What a double click on a row does.
    void setzeOeffnen(std::function<void()> oeffnen);
    void zeigen();

private:
    InfoPanel& modell_;
    InfoSeite seite_;
    Gitter* gitter_;
    QVBoxLayout* aufbau_;
    std::vector<std::function<void()>> schritte_;
};

} // namespace quelvarn
