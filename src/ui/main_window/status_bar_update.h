#pragma once

#include "ui/controls/strip.h"

#include <array>
#include <string>
#include <vector>

class QLabel;

namespace quelvarn {

class MainWindow;

// Whether the scanner changed a table since it was opened. The panels are named "StatusBarUpdate(1)" and so on.
class StatusBarUpdate : public Strip
{
    Q_OBJECT

public:
    StatusBarUpdate();

    void refresh(const MainWindow& model);
    void showChanges(const std::array<std::string, 5>& texts);

private:
    void build(const std::vector<std::string>& texts);

    std::vector<std::string> built_;
    std::vector<QLabel*> panels_;
    std::array<std::string, 5> changes_;
};

} // namespace quelvarn
