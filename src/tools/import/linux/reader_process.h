#pragma once

#include "tools/import/reader_protocol.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quelvarn::tools {

// The sending end of the pipe, in the reading process.
class Sender
{
public:
    explicit Sender(int pipe) : pipe_(pipe) {}
    // Ends the process when nobody listens any more.
    void sende(Nachrichtenart art, std::string_view inhalt);

private:
    void schreibe(const char* daten, std::size_t laenge) const;
    int pipe_;
};

struct Nachricht
{
    Nachrichtenart art = Nachrichtenart::Ende;
    std::string_view inhalt; // Until the next one.
};

// Runs a function in a process of its own, which sends messages and may crash, hang or run wild without harm
// to this one: each of these becomes one Laufzeitfehler. The process ends with this object.
class Leseprozess
{
public:
    using Arbeit = std::function<void(Sender&)>;

    // `frist`: so long may the process be silent.
    Leseprozess(const Arbeit& arbeit, std::chrono::milliseconds frist);
    ~Leseprozess();
    Leseprozess(const Leseprozess&) = delete;
    Leseprozess& operator=(const Leseprozess&) = delete;

    Nachricht naechste();

private:
    void lies(char* ziel, std::size_t laenge);
    void fuelle();
    [[noreturn]] void gescheitert();
    void beende();

    int prozess_ = -1;
    int pipe_ = -1;
    std::chrono::milliseconds frist_;
    std::string puffer_;
    std::size_t gelesen_ = 0; // of the buffer
    std::size_t gefuellt_ = 0;
    std::string nachricht_;
};

} // namespace quelvarn::tools
