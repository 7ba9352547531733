#pragma once

#include "ui/controls/strip.h"

#include <array>
#include <string>
#include <vector>

class QLabel;

namespace quelvarn {

class MainWindow;

// Whether the scanner changed a table since it was opened. The panels are named "StatusBarUpdate(1)" and so on.
class StatusBarUpdate : public Streifen
{
    Q_OBJECT

public:
    StatusBarUpdate();

    void zeigen(const MainWindow& modell);
    void zeigeAenderungen(const std::array<std::string, 5>& texte);

private:
    void baue(const std::vector<std::string>& texte);

    std::vector<std::string> gebaut_;
    std::vector<QLabel*> panele_;
    std::array<std::string, 5> aenderungen_;
};

} // namespace quelvarn
