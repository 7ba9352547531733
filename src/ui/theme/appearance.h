#pragma once

#include <QString>

class QApplication;

namespace quelvarn {

enum class Mode { Automatic, Light, Dark };

// How the program looks on this computer: light or dark, fixed or free window. Kept in a file of this user.
class Appearance
{
public:
    // "" for the file in the user's configuration folder.
    explicit Appearance(QString file = {});

    Mode mode() const { return mode_; }
    void setMode(Mode mode);
    bool windowFree() const { return windowFree_; }
    void setWindowFree(bool free);

    // Style, palette, fonts and style sheet of the whole program.
    void apply(QApplication& program) const;

    static bool darkApplied();

private:
    void save(const QString& name, const QString& value) const;

    QString file_;
    Mode mode_ = Mode::Automatic;
    bool windowFree_ = false;
};

} // namespace quelvarn
