#include "database/odbc/statement.h"

#ifdef _WIN32
#include <windows.h>
#endif
#include "base/utf16.h"
#include "database/odbc/connection_handle.h"
#include "database/sql/column_value.h"

#include <array>
#include <charconv>
#include <fmt/format.h>
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>
#include <vector>

namespace quelvarn::odbc {
namespace {

// A text as ODBC wants to see it until the statement has run.
struct Gebunden
{
    std::u16string text;
    SQLLEN laenge = SQL_NULL_DATA;
};

std::vector<Gebunden> bindung(std::span<const Value> parameter)
{
    std::vector<Gebunden> gebundene(parameter.size());
    for (std::size_t i = 0; i < parameter.size(); ++i) {
        if (istNull(parameter[i]))
            continue;
        gebundene[i].text = toUtf16(sql::parametertext(parameter[i]));
        gebundene[i].laenge = static_cast<SQLLEN>(gebundene[i].text.size() * sizeof(char16_t));
    }
    return gebundene;
}

// The longest text of a plain column of Access; beyond it a text is bound as that of a memo.
constexpr std::size_t laengsterText = 255;

SQLRETURN binde(RohHandle anweisung, std::size_t nummer, Gebunden& wert)
{
    const bool lang = wert.text.size() > laengsterText;
    const SQLULEN groesse = std::max<std::size_t>(wert.text.size(), 1); // 0 is refused.
    return SQLBindParameter(anweisung, static_cast<SQLUSMALLINT>(nummer), SQL_PARAM_INPUT, SQL_C_WCHAR,
                            lang ? SQL_WLONGVARCHAR : SQL_WVARCHAR, groesse, 0, wert.text.data(),
                            wert.laenge == SQL_NULL_DATA ? 0 : wert.laenge, &wert.laenge);
}

SQLWCHAR* breit(std::u16string& text)
{
    return reinterpret_cast<SQLWCHAR*>(text.data());
}

Zeitpunkt ausStempel(const SQL_TIMESTAMP_STRUCT& stempel)
{
    constexpr SQLUINTEGER halbeSekunde = 500'000'000;
    const Zeitpunkt zeit =
        Zeitpunkt::aus({stempel.year, stempel.month, stempel.day, stempel.hour, stempel.minute, stempel.second});
    return zeit.plusSekunden(stempel.fraction >= halbeSekunde ? 1 : 0);
}

} // namespace

Anweisung::Anweisung(std::shared_ptr<Verbindung> verbindung)
    : verbindung_(std::move(verbindung)), handle_(std::make_unique<Handle>(Handleart::Anweisung, verbindung_->roh()))
{}

void Anweisung::pruefe(Ergebnis ergebnis) const
{
    odbc::pruefe(ergebnis, Handleart::Anweisung, handle_->roh(), verbindung_->place());
}

Anweisung Anweisung::fuehreAus(std::shared_ptr<Verbindung> verbindung, std::string_view sql,
                               std::span<const Value> parameter)
{
    Anweisung anweisung(std::move(verbindung));
    std::u16string text = toUtf16(sql);
    std::vector<Gebunden> gebundene = bindung(parameter);
    for (std::size_t i = 0; i < gebundene.size(); ++i)
        anweisung.pruefe(binde(anweisung.handle_->roh(), i + 1, gebundene[i]));
    const auto starte = [&]() -> Ergebnis { return SQLExecDirectW(anweisung.handle_->roh(), breit(text), SQL_NTS); };
    anweisung.pruefe(wiederhole(starte, Handleart::Anweisung, anweisung.handle_->roh()));
    SQLFreeStmt(anweisung.handle_->roh(), SQL_RESET_PARAMS); // The values go now.
    return anweisung;
}

Anweisung Anweisung::tabellen(std::shared_ptr<Verbindung> verbindung)
{
    Anweisung anweisung(std::move(verbindung));
    std::u16string arten = u"TABLE,VIEW,SYNONYM";
    anweisung.pruefe(SQLTablesW(anweisung.handle_->roh(), nullptr, 0, nullptr, 0, nullptr, 0, breit(arten), SQL_NTS));
    return anweisung;
}

Anweisung Anweisung::spalten(std::shared_ptr<Verbindung> verbindung, std::string_view tabelle)
{
    Anweisung anweisung(std::move(verbindung));
    std::u16string name = toUtf16(tabelle);
    anweisung.pruefe(SQLColumnsW(anweisung.handle_->roh(), nullptr, 0, nullptr, 0, breit(name), SQL_NTS, nullptr, 0));
    return anweisung;
}

bool Anweisung::next()
{
    const SQLRETURN ergebnis = SQLFetch(handle_->roh());
    pruefe(ergebnis);
    return ergebnis != SQL_NO_DATA;
}

bool Anweisung::holeText(std::size_t spalte, std::string& text)
{
    std::array<char16_t, 2048> stueck;
    std::u16string gesamt;
    for (;;) {
        SQLLEN bytes = 0;
        const SQLRETURN ergebnis = SQLGetData(handle_->roh(), static_cast<SQLUSMALLINT>(spalte + 1), SQL_C_WCHAR,
                                              stueck.data(), sizeof stueck, &bytes);
        pruefe(ergebnis);
        if (ergebnis == SQL_NO_DATA)
            break;
        if (bytes == SQL_NULL_DATA)
            return false;
        // Each piece ends with a NUL; the driver may not know how much is still to come.
        const std::size_t da = stueck.size() - 1;
        const bool rest = bytes == SQL_NO_TOTAL || static_cast<std::size_t>(bytes) / sizeof(char16_t) > da;
        gesamt.append(stueck.data(), rest ? da : static_cast<std::size_t>(bytes) / sizeof(char16_t));
        if (!rest)
            break;
    }
    text = fromUtf16(gesamt);
    return true;
}

std::string Anweisung::text(std::size_t spalte)
{
    std::string text;
    holeText(spalte, text);
    return text;
}

Value Anweisung::zelle(std::size_t spalte, FeldTyp typ)
{
    const auto nummer = static_cast<SQLUSMALLINT>(spalte + 1);
    SQLLEN laenge = 0;
    if (typ == FeldTyp::Gleitkomma) {
        double zahl = 0;
        pruefe(SQLGetData(handle_->roh(), nummer, SQL_C_DOUBLE, &zahl, sizeof zahl, &laenge));
        return laenge == SQL_NULL_DATA ? Value() : Value(zahl);
    }
    if (typ == FeldTyp::Datum) {
        SQL_TIMESTAMP_STRUCT stempel{};
        pruefe(SQLGetData(handle_->roh(), nummer, SQL_C_TYPE_TIMESTAMP, &stempel, sizeof stempel, &laenge));
        return laenge == SQL_NULL_DATA ? Value() : Value(ausStempel(stempel));
    }
    std::string text;
    if (!holeText(spalte, text))
        return {};
    // Integers as texts: not every driver knows those of 64 bits.
    std::int64_t zahl = 0;
    if (typ == FeldTyp::Ganzzahl &&
        std::from_chars(text.data(), text.data() + text.size(), zahl).ptr == text.data() + text.size() && !text.empty())
        return zahl;
    return text;
}

std::int64_t Anweisung::betroffeneZeilen() const
{
    SQLLEN zeilen = 0;
    pruefe(SQLRowCount(handle_->roh(), &zeilen));
    return zeilen;
}

} // namespace quelvarn::odbc
