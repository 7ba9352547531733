#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace quelvarn::sqlite {

class Statement;

// One open file with its prepared statements. Used by one thread at a time.
class Handle : public std::enable_shared_from_this<Handle>
{
public:
    static std::shared_ptr<Handle> oeffne(const std::filesystem::path& pfad, bool neu);
    ~Handle();
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    Statement bereite(std::string_view sql);
    // Statements without a result, prepared once only.
    void fuehreAus(const std::string& sql);
    // Around each change of the file. One who writes again and again leaves the others a gap.
    void lasseVortritt();
    void merkeSchreiben();
    std::int64_t geaenderteZeilen() const;
    std::int64_t letzteZeile() const;

    [[noreturn]] void melde(int nummer) const;

private:
    friend class Statement;

    struct Bereit
    {
        std::string sql;
        sqlite3_stmt* statement;
    };

    Handle() = default;
    void richteEin();
    void gibZurueck(std::string sql, sqlite3_stmt* statement);
    static int warte(void* handle, int versuche);

    sqlite3* datenbank_ = nullptr;
    std::vector<Bereit> bereit_; // Not in use; the latest at the end.
    std::chrono::steady_clock::time_point wartetSeit_;
    std::chrono::steady_clock::time_point geschriebenUm_;
    std::minstd_rand zufall_{std::random_device{}()};
};

} // namespace quelvarn::sqlite
