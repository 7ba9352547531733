#include "database/postgresql/handle.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/catalog.h"
#include "database/postgresql/reader.h"
#include "database/postgresql/text_values.h"
#include "database/sql/column_value.h"

#include <array>
#include <fmt/format.h>
#include <libpq-fe.h>
#include <utility>
#include <vector>

namespace quelvarn::postgresql {
namespace {

// Results come as the program reads them. Compiling plans would take longer than the register's queries.
constexpr const char* einstellungen = "SET client_min_messages = warning;"
                                      "SET datestyle = 'ISO, YMD';"
                                      "SET extra_float_digits = 1;"
                                      "SET standard_conforming_strings = on;"
                                      "SET jit = off";

// Parameters as the driver takes them: texts, with a null pointer for Null.
class Parameter
{
public:
    explicit Parameter(std::span<const Value> werte)
    {
        texte_.reserve(werte.size());
        for (const Value& wert : werte) {
            texte_.push_back(sql::parametertext(wert));
            zeiger_.push_back(istNull(wert) ? nullptr : texte_.back().c_str());
        }
    }

    int anzahl() const { return static_cast<int>(zeiger_.size()); }
    const char* const* zeiger() const { return zeiger_.data(); }

private:
    std::vector<std::string> texte_;
    std::vector<const char*> zeiger_;
};

bool istFehler(const PGresult* ergebnis)
{
    const ExecStatusType status = PQresultStatus(ergebnis);
    return status == PGRES_FATAL_ERROR || status == PGRES_BAD_RESPONSE;
}

} // namespace

void LoescheErgebnis::operator()(pg_result* ergebnis) const
{
    PQclear(ergebnis);
}

std::shared_ptr<Handle> Handle::oeffne(std::string_view adresse)
{
    const std::string text(adresse);
    // What stands in the address wins over what stands in front of it here.
    const std::array<const char*, 5> namen{"connect_timeout", "fallback_application_name", "dbname", "client_encoding",
                                           nullptr};
    const std::array<const char*, 5> werte{"15", "Quelvarn", text.c_str(), "UTF8", nullptr};
    std::shared_ptr<Handle> handle(new Handle);
    handle->verbindung_ = PQconnectdbParams(namen.data(), werte.data(), 1);
    if (PQstatus(handle->verbindung_) != CONNECTION_OK)
        throw Laufzeitfehler(FEHLER_ALLGEMEIN, "PostgreSQL",
                             fmt::format("Die Verbindung zur PostgreSQL-Datenbank kann nicht hergestellt werden.\n{}",
                                         trim(PQerrorMessage(handle->verbindung_))));
    PQsetNoticeProcessor(
        handle->verbindung_, [](void*, const char*) {}, nullptr);
    handle->fuehreAus(einstellungen);
    return handle;
}

Handle::~Handle()
{
    PQfinish(verbindung_);
}

Ergebnis Handle::fuehreAus(const std::string& sql)
{
    machFrei();
    Ergebnis ergebnis(PQexec(verbindung_, sql.c_str()));
    if (istFehler(ergebnis.get()))
        melde(ergebnis.get());
    return ergebnis;
}

Ergebnis Handle::fuehreAus(const std::string& sql, std::span<const Value> parameter)
{
    machFrei();
    const Parameter p(parameter);
    Ergebnis ergebnis(PQexecParams(verbindung_, sql.c_str(), p.anzahl(), nullptr, p.zeiger(), nullptr, nullptr, 0));
    if (istFehler(ergebnis.get()))
        melde(ergebnis.get());
    return ergebnis;
}

void Handle::starte(const std::string& sql, std::span<const Value> parameter, Leser& leser)
{
    machFrei();
    const Parameter p(parameter);
    if (!PQsendQueryParams(verbindung_, sql.c_str(), p.anzahl(), nullptr, p.zeiger(), nullptr, nullptr, 0))
        melde(nullptr);
    PQsetSingleRowMode(verbindung_);
    liest_ = &leser;
}

Ergebnis Handle::naechstes()
{
    Ergebnis ergebnis(PQgetResult(verbindung_));
    if (ergebnis && istFehler(ergebnis.get())) {
        while (Ergebnis(PQgetResult(verbindung_))) {
        }
        liest_ = nullptr;
        melde(ergebnis.get());
    }
    return ergebnis;
}

void Handle::meldeAb(const Leser& leser)
{
    if (liest_ != &leser)
        return;
    liest_ = nullptr;
    while (Ergebnis(PQgetResult(verbindung_))) {
    }
}

void Handle::machFrei()
{
    if (liest_)
        liest_->holeRest();
}

void Handle::melde(const pg_result* ergebnis) const
{
    const char* text = ergebnis ? PQresultErrorMessage(ergebnis) : PQerrorMessage(verbindung_);
    const char* zustand = ergebnis ? PQresultErrorField(ergebnis, PG_DIAG_SQLSTATE) : nullptr;
    constexpr std::string_view fehlerInAnweisung = "42";
    const bool anweisung = zustand && std::string_view(zustand).starts_with(fehlerInAnweisung);
    throw Laufzeitfehler(anweisung ? FEHLER_ANWEISUNG : FEHLER_ALLGEMEIN, "PostgreSQL", std::string(trim(text)));
}

} // namespace quelvarn::postgresql
