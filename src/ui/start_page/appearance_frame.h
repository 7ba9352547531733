#pragma once

#include <QGroupBox>

#include <functional>

namespace quelvarn {

class Darstellung;

// How the program looks on this computer: colours, and whether its window can be resized.
class Darstellungsrahmen : public QGroupBox
{
    Q_OBJECT

public:
    explicit Darstellungsrahmen(Darstellung& darstellung);

    std::function<void()> geaendert;

private:
    Darstellung& darstellung_;
};

} // namespace quelvarn
