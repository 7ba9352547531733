#pragma once

#include <QListView>

#include <functional>
#include <string>
#include <vector>

namespace quelvarn {

class Wertemodell;

// A list of existing values, quick also with a hundred thousand of them. Typing goes to the first value that begins
// so; a click or Enter picks.
class Wertefeld : public QListView
{
    Q_OBJECT

public:
    explicit Wertefeld(const QString& name);

    void zeige(const std::vector<std::string>& werte);
    // Marks a value, or none.
    void markiere(const std::string& wert);
    std::function<void(const std::string& wert)> gewaehlt;

private:
    Wertemodell* modell_;
};

} // namespace quelvarn
