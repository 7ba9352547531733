#pragma once

#include "base/like_pattern.h"
#include "database/value.h"

#include <memory>
#include <string>
#include <variant>
#include <vector>

// A statement of the program's SQL dialect (that of Access), or a recordset filter, as a tree.
namespace quelvarn::sql {

enum class Vergleich { Gleich, Ungleich, Kleiner, KleinerGleich, Groesser, GroesserGleich, Like, NotLike };

struct Ausdruck;
using AusdruckZeiger = std::unique_ptr<Ausdruck>;

// column op literal. Literals: text, number, date; Null only behind Is [Not] Null.
struct Bedingung
{
    std::string spalte;
    Vergleich vergleich = Vergleich::Gleich;
    Value wert;
    Wildcards wildcards = Wildcards::Sql; // Of a LIKE: how its text is read.
};
struct IstNull
{
    std::string spalte;
    bool verneint = false;
};
struct Und
{
    std::vector<AusdruckZeiger> teile;
};
struct Oder
{
    std::vector<AusdruckZeiger> teile;
};
struct Nicht
{
    AusdruckZeiger teil;
};
struct Ausdruck
{
    std::variant<Bedingung, IstNull, Und, Oder, Nicht> inhalt;
};

struct Sortierung
{
    std::string spalte;
    bool absteigend = false;
};

struct Select
{
    bool distinct = false;
    bool anzahl = false;              // Select Count(*)
    std::vector<std::string> spalten; // Empty: all (*).
    std::string tabelle;
    AusdruckZeiger where; // May be null.
    std::vector<Sortierung> orderBy;
};
struct Zuweisung
{
    std::string spalte;
    Value wert;
};
struct Insert
{
    std::string tabelle;
    std::vector<Zuweisung> werte;
};
struct Update
{
    std::string tabelle;
    std::vector<Zuweisung> werte;
    AusdruckZeiger where;
};
struct Delete
{
    std::string tabelle;
    AusdruckZeiger where;
};
using Anweisung = std::variant<Select, Insert, Update, Delete>;

} // namespace quelvarn::sql
