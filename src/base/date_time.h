#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quelvarn {

struct Kalenderzeit
{
    int jahr = 0;
    int monat = 0;
    int tag = 0;
    int stunde = 0;
    int minute = 0;
    int sekunde = 0;
};

// A date with time, without a zone: whole seconds since 30.12.1899, the day 0 of the database.
struct Zeitpunkt
{
    std::int64_t sekunden = 0;

    static Zeitpunkt aus(const Kalenderzeit& zeit);
    // The database's own number: days, the fraction is the time of day and counts forward on negative days too.
    static Zeitpunkt ausTagen(double tage);

    Kalenderzeit kalender() const;
    double alsTage() const;
    Zeitpunkt plusSekunden(std::int64_t anzahl) const { return {sekunden + anzahl}; }
    Zeitpunkt plusTage(std::int64_t anzahl) const { return {sekunden + anzahl * 86400}; }
    // Midnight of the same day.
    Zeitpunkt tagesbeginn() const;

    auto operator<=>(const Zeitpunkt&) const = default;
};

// False for a day that the calendar lacks.
bool istGueltig(const Kalenderzeit& zeit);

// German formats, in every locale.
std::string formatDatum(Zeitpunkt zeit);         // dd.mm.yy
std::string formatDatumLang(Zeitpunkt zeit);     // dd.mm.yyyy
std::string formatDatumUhrzeit(Zeitpunkt zeit);  // dd.mm.yy hh:mm
std::string formatDatumSekunden(Zeitpunkt zeit); // dd.mm.yy hh:mm:ss
// As the database turns a date into text: dd.mm.yyyy hh:mm:ss, without the time at midnight.
std::string alsText(Zeitpunkt zeit);
std::string formatIso(Zeitpunkt zeit); // YYYY-MM-DD HH:MM:SS

// dd.mm.yy or dd.mm.yyyy, with or without a time, also "/" or "-" between; nothing when it is no date.
// Two-digit years 00 to 29 are 2000 to 2029, the others 1930 to 1999.
std::optional<Zeitpunkt> parseDatum(std::string_view text);
std::optional<Zeitpunkt> parseIso(std::string_view text);
int vierstelligesJahr(int jahr);

} // namespace quelvarn
