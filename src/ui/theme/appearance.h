#pragma once

#include <QString>

class QApplication;

namespace quelvarn {

enum class Modus { Automatisch, Hell, Dunkel };

// How the program looks on this computer: light or dark, fixed or free window. Kept in a file of this user.
class Darstellung
{
public:
    // "" for the file in the user's configuration folder.
    explicit Darstellung(QString datei = {});

    Modus modus() const { return modus_; }
    void setzeModus(Modus modus);
    bool fensterFrei() const { return fensterFrei_; }
    void setzeFensterFrei(bool frei);

    // Style, palette, fonts and style sheet of the whole program.
    void wendeAn(QApplication& programm) const;

    static bool dunkelAngewendet();

private:
    void sichere(const QString& name, const QString& wert) const;

    QString datei_;
    Modus modus_ = Modus::Automatisch;
    bool fensterFrei_ = false;
};

} // namespace quelvarn
