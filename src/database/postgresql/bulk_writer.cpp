#include "database/postgresql/bulk_writer.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/sql/column_value.h"
#include "database/sql/renderer.h"

#include <cassert>
#include <fmt/format.h>

namespace quelvarn::postgresql {
namespace {

constexpr std::size_t puffergroesse = 1 << 16;

// A cell of the COPY text format.
void haengeZelleAn(std::string& puffer, std::string_view text)
{
    for (const char zeichen : text) {
        switch (zeichen) {
        case '\\':
            puffer += "\\\\";
            break;
        case '\n':
            puffer += "\\n";
            break;
        case '\r':
            puffer += "\\r";
            break;
        case '\t':
            puffer += "\\t";
            break;
        default:
            puffer += zeichen;
        }
    }
}

std::string kopieranweisung(const std::string& tabelle, std::span<const Spalte> spalten)
{
    std::vector<std::string> namen;
    for (const Spalte& spalte : spalten)
        namen.push_back(sql::Dialekt::bezeichner(spalte.name));
    return fmt::format("COPY {} ({}) FROM STDIN", sql::Dialekt::bezeichner(tabelle), join(namen, ", "));
}

} // namespace

Massenschreiber::Massenschreiber(PostgresEngine& engine, std::shared_ptr<Handle> handle, const std::string& tabelle,
                                 std::vector<Spalte> spalten)
    : engine_(engine), handle_(std::move(handle)), tabelle_(tabelle), spalten_(std::move(spalten)), transaktion_(engine)
{
    handle_->fuehreAus(kopieranweisung(tabelle_, spalten_));
}

Massenschreiber::~Massenschreiber()
{
    if (!kopiert_)
        return;
    try {
        handle_->beendeZeilen("abgebrochen");
    } catch (const Laufzeitfehler&) {
        // The server confirms that it gave up, or is gone.
    }
}

void Massenschreiber::zeile(std::span<const Value> werte)
{
    assert(werte.size() == spalten_.size());
    for (std::size_t i = 0; i < werte.size(); ++i) {
        puffer_ += i ? "\t" : "";
        const auto* text = std::get_if<std::string>(&werte[i]);
        if (istNull(werte[i]))
            puffer_ += "\\N";
        else if (text && spalten_[i].typ == FeldTyp::Text)
            haengeZelleAn(puffer_, *text);
        else
            haengeZelleAn(puffer_, sql::parametertext(sql::speicherwert(werte[i], spalten_[i].typ)));
    }
    puffer_ += '\n';
    if (puffer_.size() > puffergroesse)
        sende();
}

void Massenschreiber::sende()
{
    handle_->sendeZeilen(puffer_);
    puffer_.clear();
}

void Massenschreiber::beende()
{
    sende();
    kopiert_ = false;
    handle_->beendeZeilen(nullptr);
    transaktion_.schliesseAb();
    engine_.frischeAuf(tabelle_);
}

} // namespace quelvarn::postgresql
