#include "platform/boxes.h"

namespace quelvarn {

void Meldungen::hinweis(std::string_view titel, std::string_view text)
{
    zeige({std::string(titel), std::string(text), Symbol::Keins, Knoepfe::Ok});
}

void Meldungen::information(std::string_view titel, std::string_view text)
{
    zeige({std::string(titel), std::string(text), Symbol::Information, Knoepfe::Ok});
}

void Meldungen::warnung(std::string_view titel, std::string_view text)
{
    zeige({std::string(titel), std::string(text), Symbol::Warnung, Knoepfe::Ok});
}

bool Meldungen::frage(std::string_view titel, std::string_view text)
{
    return zeige({std::string(titel), std::string(text), Symbol::Frage, Knoepfe::JaNein}) == Antwort::Ja;
}

} // namespace quelvarn
