#include "database/recordset.h"

#include "database/connection.h"
#include "database/recordset_core.h"
#include "database/sql/parser.h"

#include <algorithm>

namespace quelvarn {

Laufzeitfehler recordsetFehler(int nummer, const std::string& beschreibung)
{
    return {nummer, "Recordset", beschreibung};
}

Recordset::Recordset() : kern_(std::make_unique<Kern>()) {}
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

void Recordset::Open(sql::FixedText select, Connection& verbindung, CursorTyp cursor, SperrTyp sperre)
{
    auto anweisung = sql::parseAnweisung(select.text());
    auto* abfrage = std::get_if<sql::Select>(&anweisung);
    if (!abfrage)
        throw recordsetFehler(3001, "Ein Recordset kann nur mit einer Auswahlabfrage geöffnet werden.");
    Open(std::move(*abfrage), verbindung, cursor, sperre);
}

void Recordset::Open(sql::Select select, Connection& verbindung, CursorTyp, SperrTyp sperre)
{
    auto neu = std::make_unique<Kern>();
    neu->klein = kern_->klein;
    neu->sperre = sperre;
    if (!verbindung.offen())
        throw recordsetFehler(3709, "Die Verbindung zur Datenbank ist nicht geöffnet.");
    neu->zeilen.oeffne(
        verbindung.engine_, std::move(select),
        {.schreibbar = sperre != SperrTyp::NurLesen, .ganzLesen = sperre == SperrTyp::Stapel, .klein = neu->klein});
    neu->ansicht.zeigeAlle(neu->zeilen.anzahl());
    neu->offen = true;
    kern_ = std::move(neu);
}

void Recordset::FeldAnhaengen(std::string_view name, FeldTyp typ)
{
    if (kern_->offen)
        throw recordsetFehler(3705, "Einem geöffneten Recordset kann kein Feld angehängt werden.");
    kern_->zeilen.haengeFeldAn({std::string(name), typ});
}

void Recordset::Open()
{
    auto neu = std::make_unique<Kern>();
    for (const Spalte& feld : kern_->zeilen.felder())
        neu->zeilen.haengeFeldAn(feld);
    neu->sperre = SperrTyp::Optimistisch;
    neu->offen = true;
    kern_ = std::move(neu);
}

void Recordset::Close()
{
    auto neu = std::make_unique<Kern>();
    if (!kern_->zeilen.engine())
        for (const Spalte& feld : kern_->zeilen.felder())
            neu->zeilen.haengeFeldAn(feld);
    neu->klein = kern_->klein;
    kern_ = std::move(neu);
}

void Recordset::setzeGanzGrenze(std::size_t zeilen)
{
    kern_->klein = std::max<std::size_t>(zeilen, 1);
}

bool Recordset::offen() const
{
    return kern_->offen;
}

const std::vector<Spalte>& Recordset::Felder() const
{
    return kern_->zeilen.felder();
}

bool Recordset::hatFeld(std::string_view name) const
{
    return kern_->zeilen.findeFeld(name).has_value();
}

bool Recordset::Bof() const
{
    const bool neueZeile = kern_->bearbeitung && kern_->bearbeitung->neu;
    return !neueZeile && (kern_->position < 0 || kern_->ansicht.anzahl() == 0);
}

bool Recordset::Eof() const
{
    const bool neueZeile = kern_->bearbeitung && kern_->bearbeitung->neu;
    return !neueZeile && !kern_->aufZeile() && (kern_->position >= 0 || kern_->ansicht.anzahl() == 0);
}

std::size_t Recordset::RecordCount() const
{
    return kern_->ansicht.anzahl();
}

void Recordset::MoveFirst()
{
    kern_->beendeBearbeitung();
    if (kern_->ansicht.anzahl() == 0)
        throw recordsetFehler(3021, "Das Recordset ist leer.");
    kern_->geheZu(0);
}

void Recordset::MoveLast()
{
    kern_->beendeBearbeitung();
    if (kern_->ansicht.anzahl() == 0)
        throw recordsetFehler(3021, "Das Recordset ist leer.");
    kern_->geheZu(static_cast<std::ptrdiff_t>(kern_->ansicht.anzahl()) - 1);
}

void Recordset::MoveNext()
{
    kern_->beendeBearbeitung();
    if (Eof())
        throw recordsetFehler(3021, "Hinter dem letzten Datensatz gibt es keinen weiteren.");
    kern_->geheZu(kern_->position + 1);
}

void Recordset::MovePrevious()
{
    kern_->beendeBearbeitung();
    if (Bof())
        throw recordsetFehler(3021, "Vor dem ersten Datensatz gibt es keinen weiteren.");
    kern_->geheZu(kern_->position - 1);
}

Value Recordset::Feld(std::string_view name) const
{
    kern_->verlangeOffen();
    return kern_->feldwert(kern_->zeilen.feldVon(name));
}

std::string Recordset::Text(std::string_view name) const
{
    return alsText(Feld(name));
}

Bookmark Recordset::bookmark() const
{
    return kern_->aktuelleZeile();
}

bool Recordset::setzeBookmark(Bookmark zeile)
{
    kern_->beendeBearbeitung();
    const auto position = kern_->ansicht.findePosition(zeile);
    if (position)
        kern_->geheZu(static_cast<std::ptrdiff_t>(*position));
    return position.has_value();
}

std::size_t Recordset::AbsolutePosition() const
{
    return kern_->aufZeile() ? static_cast<std::size_t>(kern_->position) : RecordCount();
}

void Recordset::setzeAbsolutePosition(std::size_t position)
{
    kern_->beendeBearbeitung();
    if (position >= RecordCount())
        throw recordsetFehler(3001, "So viele Datensätze hat das Recordset nicht.");
    kern_->geheZu(static_cast<std::ptrdiff_t>(position));
}

Value Recordset::Zelle(std::size_t position, std::string_view name) const
{
    const std::size_t feld = kern_->zeilen.feldVon(name);
    if (position >= RecordCount())
        throw recordsetFehler(3021, "Diesen Datensatz gibt es nicht.");
    if (kern_->zeilen.geladen(feld))
        return kern_->zeilen.spalte(feld).wert(kern_->ansicht.zeile(position));
    return kern_->puffer.zelle(kern_->zeilen, kern_->ansicht, position, feld);
}

bool Recordset::ladeSpalten(std::span<const std::string> namen, const Fortschritt& fortschritt)
{
    kern_->verlangeOffen();
    std::vector<std::size_t> felder;
    for (const std::string& name : namen)
        felder.push_back(kern_->zeilen.feldVon(name));
    return kern_->zeilen.lade(felder, fortschritt);
}

bool Recordset::ladeSpalte(std::string_view name, const Fortschritt& fortschritt)
{
    const std::string einer(name);
    return ladeSpalten({&einer, 1}, fortschritt);
}

bool Recordset::spalteGeladen(std::string_view name) const
{
    return kern_->zeilen.geladen(kern_->zeilen.feldVon(name));
}

std::size_t Recordset::speicherbedarf() const
{
    return sizeof(Kern) + kern_->zeilen.speicher() + kern_->ansicht.speicher() +
           (kern_->ordnung.capacity() + kern_->geloescht.capacity()) * sizeof(Zeilennummer);
}

void Recordset::Kern::verlangeOffen() const
{
    if (!offen)
        throw recordsetFehler(3704, "Das Recordset ist nicht geöffnet.");
}

std::size_t Recordset::Kern::aktuellePosition() const
{
    verlangeOffen();
    if (!aufZeile())
        throw recordsetFehler(3021, "Es gibt keinen aktuellen Datensatz.");
    return static_cast<std::size_t>(position);
}

Value Recordset::Kern::feldwert(std::size_t feld) const
{
    if (bearbeitung && bearbeitung->werte[feld])
        return *bearbeitung->werte[feld];
    if (bearbeitung && bearbeitung->neu)
        return {};
    const std::size_t stelle = aktuellePosition();
    if (zeilen.geladen(feld))
        return zeilen.spalte(feld).wert(ansicht.zeile(stelle));
    return puffer.zeilenwert(zeilen, ansicht, stelle, feld);
}

void Recordset::Kern::geheZu(std::ptrdiff_t neuePosition)
{
    verlangeOffen();
    position = neuePosition;
}

} // namespace quelvarn
