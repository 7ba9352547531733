#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

enum class Symbol { Keins, Information, Warnung, Frage, Kritisch };
enum class Knoepfe { Ok, OkAbbrechen, JaNein, JaNeinAbbrechen };
enum class Antwort { Ok, Abbrechen, Ja, Nein };

struct Meldung
{
    std::string titel;
    std::string text;
    Symbol symbol = Symbol::Keins;
    Knoepfe knoepfe = Knoepfe::Ok;
    bool operator==(const Meldung&) const = default;
};

// Every box that a user sees goes through here. Returns when he has answered.
class Meldungen
{
public:
    virtual ~Meldungen() = default;
    virtual Antwort zeige(const Meldung& meldung) = 0;

    void hinweis(std::string_view titel, std::string_view text);
    void information(std::string_view titel, std::string_view text);
    void warnung(std::string_view titel, std::string_view text);
    // True for Yes.
    bool frage(std::string_view titel, std::string_view text);
};

} // namespace quelvarn
