#include "database/postgresql/reader.h"

#include "database/postgresql/text_values.h"

#include <libpq-fe.h>

namespace quelvarn::postgresql {

Leser::Leser(std::shared_ptr<Handle> handle, const std::string& sql, std::span<const Value> parameter,
             std::vector<Spalte> spalten, MitSchluessel schluessel)
    : handle_(std::move(handle)), spalten_(std::move(spalten)), versatz_(schluessel == MitSchluessel::Ja ? 1 : 0)
{
    // A fault of the statement is told here, not at the first row.
    if (Ergebnis erste = nimm(handle_->starte(sql, parameter, *this)))
        rest_.push_back(std::move(erste));
}

Leser::~Leser()
{
    if (amServer_)
        handle_->meldeAb(*this);
}

Ergebnis Leser::holeZeile()
{
    try {
        return nimm(handle_->naechstes());
    } catch (...) {
        amServer_ = false;
        fehler_ = std::current_exception();
        throw;
    }
}

// The row, or nothing when the piece is the end of the rows.
Ergebnis Leser::nimm(Ergebnis stueck)
{
    if (stueck && PQresultStatus(stueck.get()) == PGRES_SINGLE_TUPLE)
        return stueck;
    amServer_ = false;
    handle_->meldeAb(*this);
    return nullptr;
}

bool Leser::next()
{
    if (!rest_.empty()) {
        zeile_ = std::move(rest_.front());
        rest_.pop_front();
    } else if (fehler_) {
        std::rethrow_exception(fehler_);
    } else {
        zeile_ = amServer_ ? holeZeile() : nullptr;
    }
    return zeile_ != nullptr;
}

void Leser::holeRest() noexcept
{
    try {
        while (amServer_)
            if (Ergebnis zeile = holeZeile())
                rest_.push_back(std::move(zeile));
    } catch (...) {
        amServer_ = false; // next() tells it.
    }
}

Zeilenschluessel Leser::schluessel() const
{
    return versatz_ ? ganzzahlAus(PQgetvalue(zeile_.get(), 0, 0)).value_or(0) : 0;
}

bool Leser::istNull(std::size_t spalte) const
{
    return PQgetisnull(zeile_.get(), 0, static_cast<int>(spalte) + versatz_);
}

std::string_view Leser::text(std::size_t spalte) const
{
    const int stelle = static_cast<int>(spalte) + versatz_;
    return {PQgetvalue(zeile_.get(), 0, stelle), static_cast<std::size_t>(PQgetlength(zeile_.get(), 0, stelle))};
}

std::int64_t Leser::ganzzahl(std::size_t spalte) const
{
    return ganzzahlAus(text(spalte)).value_or(0);
}

double Leser::gleitkomma(std::size_t spalte) const
{
    return gleitkommaAus(text(spalte)).value_or(0);
}

Zeitpunkt Leser::datum(std::size_t spalte) const
{
    return parseIso(text(spalte)).value_or(Zeitpunkt{});
}

Value Leser::wert(std::size_t spalte) const
{
    if (istNull(spalte))
        return {};
    return ausServertext(text(spalte), spalten_[spalte].typ);
}

} // namespace quelvarn::postgresql
