#include "filter/user_defined_lists.h"

#include "base/collation.h"
#include "base/text.h"
#include "base/utf8.h"
#include "base/windows_path.h"
#include "database/sql/conditions.h"
#include "filter/user_defined_match.h"

#include <algorithm>
#include <fmt/format.h>
#include <functional>
#include <memory>
#include <tuple>
#include <unordered_set>

namespace quelvarn {

namespace {

constexpr std::size_t SCHRITTWEITE = 8192;

struct Streuwert
{
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
};

// Texts that came before, as they stand. Rows often repeat the text of the row before.
class Textsammlung
{
public:
    void nimm(std::string_view text)
    {
        if (text == letzter_)
            return;
        letzter_ = text;
        if (!texte_.contains(text))
            texte_.emplace(text);
    }

    // In order, one of those that differ in case or trailing blanks alone, without blanks where there is such a one;
    // blank ones are left out.
    std::vector<std::string> werte() const
    {
        std::vector<std::string> werte;
        std::ranges::copy_if(texte_, std::back_inserter(werte),
                             [](const std::string& text) { return !trimRightBlanks(text).empty(); });
        std::ranges::sort(werte, [](const std::string& links, const std::string& rechts) {
            const int vergleich = compareText(links, rechts);
            return vergleich != 0 ? vergleich < 0
                                  : std::tuple(links.ends_with(' '), std::string_view(links)) <
                                        std::tuple(rechts.ends_with(' '), std::string_view(rechts));
        });
        werte.erase(std::unique(werte.begin(), werte.end(), equalText), werte.end());
        return werte;
    }

private:
    std::unordered_set<std::string, Streuwert, std::equal_to<>> texte_;
    std::string letzter_;
};

std::unique_ptr<Zeilenleser> firstName(Connection& verbindung, std::string_view tabelle, sql::AusdruckZeiger condition)
{
    sql::Select select = sql::Query(tabelle).columns({"Name"}).where(std::move(condition)).sortedBy("Name");
    return verbindung.engine().lese(select, MitSchluessel::Nein, 1);
}

// The same name without blanks behind it, where some row has it so. Few names have such blanks at all.
std::string withoutBlanks(Connection& verbindung, std::string_view tabelle, std::string name,
                          const std::string& WhereStatus)
{
    if (!name.ends_with(' '))
        return name;
    const auto row = firstName(verbindung, tabelle,
                               sql::all(sql::equal("Name", name), sql::compare("Name", sql::Vergleich::NotLike, "% "),
                                        sql::statusScope(WhereStatus)));
    return row->next() ? std::string(row->text(0)) : name;
}

} // namespace

// From one name to the next through the index: few names stand in many rows.
std::vector<std::string> leseNamen(Connection& verbindung, std::string_view tabelle, const std::string& WhereStatus)
{
    std::vector<std::string> namen;
    for (;;) {
        const auto zeile =
            firstName(verbindung, tabelle,
                      sql::all(namen.empty() ? nullptr : sql::compare("Name", sql::Vergleich::Groesser, namen.back()),
                               sql::statusScope(WhereStatus)));
        if (!zeile->next())
            return namen;
        namen.push_back(withoutBlanks(verbindung, tabelle, std::string(zeile->text(0)), WhereStatus));
    }
}

std::array<std::vector<std::string>, ANZAHL_ZUSBENUTZDEF> leseZusaetze(Connection& verbindung, std::string_view tabelle,
                                                                       std::size_t zeilen, LangeArbeit& arbeit)
{
    sql::Select select;
    select.tabelle = tabelle;
    select.spalten.assign(ZUSATZSPALTEN.begin(), ZUSATZSPALTEN.end());
    std::array<Textsammlung, ANZAHL_ZUSBENUTZDEF> texte;
    const auto leser = verbindung.engine().lese(select, MitSchluessel::Nein);
    for (std::size_t gelesen = 0; leser->next(); ++gelesen) {
        if (gelesen % SCHRITTWEITE == 0 && !arbeit(std::min(gelesen, zeilen), zeilen))
            return {};
        for (std::size_t spalte = 0; spalte < texte.size(); ++spalte)
            texte[spalte].nimm(leser->text(spalte));
    }
    std::array<std::vector<std::string>, ANZAHL_ZUSBENUTZDEF> werte;
    std::ranges::transform(texte, werte.begin(), [](const Textsammlung& sammlung) { return sammlung.werte(); });
    return werte;
}

std::vector<std::string> leseWerte(Connection& verbindung, std::string_view tabelle, std::string_view name)
{
    sql::Select select;
    select.tabelle = tabelle;
    select.spalten = {"Wert"};
    select.where = sql::equal("Name", name);
    Textsammlung texte;
    const auto leser = verbindung.engine().lese(select, MitSchluessel::Nein);
    while (leser->next())
        texte.nimm(leser->text(0));
    return texte.werte();
}

std::string gezeigterWert(const std::string& wert)
{
    return countCharacters(wert) < AB_PFAD ? wert : "*" + DateiName(wert);
}

// An address is one row with a column for each item, or several rows with one item each.
std::string empfaenger(Connection& verbindung, std::string_view kennung)
{
    sql::Select select;
    select.tabelle = "Adresstabelle";
    select.where = sql::equal("Kennung", kennung);
    const auto zeilen = verbindung.engine().lese(select, MitSchluessel::Nein);
    const auto spalte = [&](std::string_view name) {
        return static_cast<std::size_t>(
            std::ranges::find_if(zeilen->spalten(), [&](const Spalte& feld) { return equalText(feld.name, name); }) -
            zeilen->spalten().begin());
    };
    const std::size_t ende = zeilen->spalten().size();
    std::string gefunden;
    while (zeilen->next()) {
        std::string firma;
        if (spalte("Firma") < ende)
            firma = zeilen->text(spalte("Firma"));
        else if (spalte("Wert") < ende && equalText(zeilen->text(spalte("Name")), "Firma"))
            firma = zeilen->text(spalte("Wert"));
        if (!firma.empty())
            return firma;
        gefunden = kennung;
    }
    return gefunden;
}

} // namespace quelvarn
