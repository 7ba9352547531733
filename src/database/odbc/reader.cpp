#include "database/odbc/reader.h"

#include <limits>

namespace quelvarn::odbc {

std::string_view Zeilentraeger::text(std::size_t spalte) const
{
    if (const auto* text = std::get_if<std::string>(&zeile_[spalte]))
        return *text;
    text_ = alsText(zeile_[spalte]);
    return text_;
}

Leser::Leser(Anweisung anweisung, std::vector<Spalte> spalten, const std::vector<Spalte>& rest, std::size_t grenze,
             std::optional<Schluesselquelle> quelle)
    : Zeilentraeger(std::move(spalten)), anweisung_(std::move(anweisung)),
      uebrig_(grenze > 0 ? grenze : std::numeric_limits<std::size_t>::max()), quelle_(std::move(quelle))
{
    for (const Spalte& spalte : this->spalten())
        typen_.push_back(spalte.typ);
    for (const Spalte& spalte : rest)
        typen_.push_back(spalte.typ);
    zeile_.resize(typen_.size());
}

bool Leser::next()
{
    if (zuEnde_ || uebrig_ == 0 || !anweisung_.next()) {
        zuEnde_ = true;
        return false;
    }
    --uebrig_;
    for (std::size_t i = 0; i < typen_.size(); ++i)
        zeile_[i] = anweisung_.zelle(i, typen_[i]);
    if (quelle_)
        merkeSchluessel();
    return true;
}

void Leser::merkeSchluessel()
{
    std::vector<Value> ganze;
    for (const std::size_t stelle : quelle_->stellen)
        ganze.push_back(zeile_[stelle]);
    const std::string bild = Zeilenbuch::bildOf(ganze);
    schluessel_ = quelle_->buch->schluesselOf(bild, ++vorkommen_[bild]);
}

bool Listenleser::next()
{
    if (naechste_ == zeilen_.size())
        return false;
    schluessel_ = zeilen_[naechste_].schluessel;
    zeile_ = std::move(zeilen_[naechste_++].werte);
    return true;
}

} // namespace quelvarn::odbc
