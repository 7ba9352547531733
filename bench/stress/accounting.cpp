#include "stress/accounting.h"

#include "database/engine.h"
#include "database/sql/conditions.h"
#include "stress/gestures.h"

#include <algorithm>
#include <fmt/format.h>
#include <functional>
#include <map>
#include <utility>

namespace quelvarn::stress {
namespace {

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;
using Column = std::pair<const char*, std::string>;

// The rows where these columns say so.
Rows read(Engine& engine, const char* table, std::vector<std::string> columns, const std::vector<Column>& where)
{
    sql::Select select;
    select.table = table;
    select.columns = std::move(columns);
    sql::And all;
    for (const Column& column : where)
        all.parts.push_back(sql::equal(column.first, column.second));
    select.where = std::make_unique<sql::Expression>(sql::Expression{std::move(all)});
    Rows rows;
    const auto reader = engine.read(select, WithKey::No);
    while (reader->next()) {
        Row& row = rows.emplace_back();
        for (std::size_t i = 0; i < reader->columns().size(); ++i)
            row.push_back(asText(reader->value(i)));
    }
    return rows;
}

// How often something must be there that came with one turn and goes with another.
struct Bounds
{
    long least = 0;
    long most = 0;
    bool allow(long count) const { return count == least || count == most; }
};

class Comparison
{
public:
    Comparison(Engine& engine, const std::string& user, const Account& account)
        : engine_(engine), user_(user), account_(account)
    {}

    std::vector<std::string> run()
    {
        counter();
        uses();
        generation(TEXT_GROUP, TEXTS, Gesture::SaveTexts);
        generation(SWITCH_GROUP, SWITCHES, Gesture::SaveSwitches);
        favourites();
        return std::move(faults_);
    }

private:
    template <typename... Args> void fault(fmt::format_string<Args...> text, Args&&... args)
    {
        faults_.push_back(user_ + ": " + fmt::format(text, std::forward<Args>(args)...));
    }

    Rows ini(const char* group) const
    {
        return read(engine_, "Ini", {"Feld3", "Feld4"}, {{"Feld1", user_}, {"Feld2", group}});
    }

    static std::set<long> turnsOf(const std::set<long>& turns, Gesture gesture)
    {
        std::set<long> result;
        std::ranges::copy_if(turns, std::inserter(result, result.end()),
                             [&](long turn) { return gestureOf(turn) == gesture; });
        return result;
    }

    // `count` rows when the turn `made` came to its end, none when the one that undoes it did.
    Bounds boundsOf(long made, Gesture undoing, long count) const
    {
        Bounds bounds{account_.done.contains(made) ? count : 0,
                      account_.done.contains(made) || account_.unsure.contains(made) ? count : 0};
        for (const long turn : {made + 1, made + 6}) {
            if (gestureOf(turn) != undoing || undoneBy(turn) != made)
                continue;
            if (account_.done.contains(turn))
                bounds = {};
            if (account_.unsure.contains(turn))
                bounds.least = 0;
        }
        return bounds;
    }

    void counter()
    {
        const auto done = static_cast<long>(turnsOf(account_.done, Gesture::CountUp).size());
        const auto unsure = static_cast<long>(turnsOf(account_.unsure, Gesture::CountUp).size());
        const Rows rows = ini(COUNTER_GROUP);
        const long value = rows.empty() ? 0 : std::stol(rows[0][1]);
        if (rows.size() > 1 || value < done || value > done + unsure)
            fault("the counter has {} rows and says {}, not {} to {}", rows.size(), value, done, done + unsure);
    }

    void uses()
    {
        std::map<Row, long> found; // By file, document and computer.
        for (Row& row : read(engine_, "CheckInOut", {"filenameNutzer", "DokuBezNutzer", "RechnerNutzer"},
                             {{"AnwenderNutzer", user_}}))
            ++found[std::move(row)];
        each(Gesture::CheckOut, [&](long turn) {
            const auto row = found.extract(Row{fileOf(user_, turn), documentOf(turn), user_});
            const long count = row.empty() ? 0 : row.mapped();
            if (!boundsOf(turn, Gesture::CheckIn, 1).allow(count))
                fault("turn {} left {} rows in CheckInOut", turn, count);
        });
        if (!found.empty())
            fault("{} rows in CheckInOut come from nowhere, such as {}", found.size(), found.begin()->first[0]);
    }

    void each(Gesture gesture, const std::function<void(long)>& visit) const
    {
        for (const auto& turns : {account_.done, account_.unsure})
            for (const long turn : turnsOf(turns, gesture))
                visit(turn);
    }

    // All rows of the group are of one turn: the last that was done, or one that was killed behind it.
    void generation(const char* group, long count, Gesture gesture)
    {
        const std::set<long> done = turnsOf(account_.done, gesture);
        std::set<long> allowed = turnsOf(account_.unsure, gesture);
        const bool mayMiss = done.empty();
        if (!done.empty()) {
            allowed.erase(allowed.begin(), allowed.lower_bound(*done.rbegin()));
            allowed.insert(*done.rbegin());
        }
        const Rows rows = ini(group);
        if (rows.empty() && mayMiss)
            return;
        const bool whole = static_cast<long>(rows.size()) == count &&
                           std::ranges::all_of(rows, [&](const Row& row) { return row[1] == rows[0][1]; });
        if (!whole || !allowed.contains(std::stol(rows[0][1])))
            fault("{}: {} rows of {}, first of turn {}, last done was {}", group, rows.size(), count,
                  rows.empty() ? "-" : rows[0][1], done.empty() ? -1 : *done.rbegin());
    }

    void favourites()
    {
        std::map<long, long> found; // Rows by turn.
        for (const Row& row : read(engine_, "Ini", {"Feld4"}, {{"Feld1", user_}, {"Feld2", "Favoriten"}}))
            ++found[std::stol(row[0].substr(row[0].find(' ') + 1))];
        each(Gesture::AddFavourites, [&](long turn) {
            const auto rows = found.extract(turn);
            const long count = rows.empty() ? 0 : rows.mapped();
            if (!boundsOf(turn, Gesture::RemoveFavourites, FAVOURITES).allow(count))
                fault("turn {} left {} favourites of {}", turn, count, FAVOURITES);
        });
        if (!found.empty())
            fault("favourites of {} turns come from nowhere, such as {}", found.size(), found.begin()->first);
    }

    Engine& engine_;
    const std::string& user_;
    const Account& account_;
    std::vector<std::string> faults_;
};

} // namespace

std::vector<std::string> compare(Engine& engine, const std::string& user, const Account& account)
{
    return Comparison(engine, user, account).run();
}

bool isWhole(Engine& engine, const std::string& user)
{
    const Rows rows = read(engine, "Ini", {"Feld4"}, {{"Feld1", user}, {"Feld2", TEXT_GROUP}});
    return rows.empty() ||
           (rows.size() == TEXTS && std::ranges::all_of(rows, [&](const Row& row) { return row == rows[0]; }));
}

} // namespace quelvarn::stress
