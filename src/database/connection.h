#pragma once

#include "database/engine_transaction.h"
#include "database/sql/fixed_text.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace quelvarn {

enum class DatabaseKind { Unknown, SQLite, PostgreSQL, Access };

// By the first bytes of what lies there, not by the ending. Throws RuntimeError when it cannot be read.
DatabaseKind recognizeDatabase(const std::filesystem::path& path);

class Recordset;

// The one connection of a session; shared by its recordsets.
class Connection
{
public:
    Connection() = default;
    explicit Connection(std::shared_ptr<Engine> engine) : engine_(std::move(engine)) {}
    ~Connection();
    Connection(Connection&&) noexcept;
    Connection& operator=(Connection&&) noexcept;

    // A SQLite file, an Access file where a driver for it is installed, or a text file whose first line is a
    // postgresql:// address. Anything else throws RuntimeError with a German description.
    void Open(const std::filesystem::path& path);
    // A path, or a postgresql:// address itself.
    void openAddress(std::string_view pathOrAddress);
    void Close();
    bool open() const { return engine_ != nullptr; }

    // Asked while a database lets wait, also one that is opened later; null for nobody. Outlives the connection.
    void setPatience(Patience* patience);
    Patience* patience() const { return patience_; }

    // What became of the file that was opened; the same where a server keeps the database.
    FileState fileState() const;
    // Throws DatabaseFault unless it is still the same.
    void checkFile() const;

    // One INSERT, UPDATE or DELETE: a tree, or text of the program's dialect without a value from outside. Rows
    // affected.
    std::int64_t execute(const sql::Statement& statement);
    std::int64_t execute(sql::FixedText statement);

    Engine& engine() const;

private:
    void use(std::shared_ptr<Engine> engine);

    std::shared_ptr<Engine> engine_;
    Patience* patience_ = nullptr;
    friend class Recordset;
    friend void openRows(Recordset& recordset, std::string_view table, std::vector<RowKey> keys,
                         Connection& connection);
    friend class Transaction;
};

// Several row changes that belong together: all or none, where the engine can. Taken back unless commit was
// called.
class Transaction
{
public:
    explicit Transaction(const Connection& connection) : engine_(connection.engine_), transaction_(connection.engine())
    {}
    void commit() { transaction_.commit(); }

private:
    std::shared_ptr<Engine> engine_; // Outlives a connection that is closed meanwhile.
    EngineTransaction transaction_;
};

} // namespace quelvarn
