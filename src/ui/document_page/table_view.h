#pragma once

#include "ui/controls/choice_view.h"

#include <QTreeView>
#include <QWidget>

namespace quelvarn {

class Baummodell;
struct Program;
class Gitter;

// The page of one document type on the tab control: grid above, property tree below.
class Tabellenansicht : public QWidget
{
    Q_OBJECT

public:
    Tabellenansicht(Program& program, int tab);

    void zeigen();
    Gitter& gitter() { return *gitter_; }
    // A row was double-clicked, or Enter pressed on it.
    std::function<void()> geoeffnet;

private:
    void baueGitter();
    void baueBaum();
    void zeigeBaum();

    Program& program_;
    int tab_;
    Gitter* gitter_;
    Wahlansicht<QTreeView>* baum_;
    Baummodell* knoten_;
};

} // namespace quelvarn
