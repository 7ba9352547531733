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
    void send(PacketKind kind, std::string_view content);

private:
    void write(const char* data, std::size_t length) const;
    int pipe_;
};

struct Packet
{
    PacketKind kind = PacketKind::End;
    std::string_view content; // Until the next one.
};

// Runs a function in a process of its own, which sends messages and may crash, hang or run wild without harm
// to this one: each of these becomes one RuntimeError. The process ends with this object.
class ReaderProcess
{
public:
    using Work = std::function<void(Sender&)>;

    // `deadline`: so long may the process be silent.
    ReaderProcess(const Work& work, std::chrono::milliseconds deadline);
    ~ReaderProcess();
    ReaderProcess(const ReaderProcess&) = delete;
    ReaderProcess& operator=(const ReaderProcess&) = delete;

    Packet next();

private:
    void read(char* target, std::size_t length);
    void fill();
    [[noreturn]] void failed();
    void end();

    int process_ = -1;
    int pipe_ = -1;
    std::chrono::milliseconds deadline_;
    std::string buffer_;
    std::size_t read_ = 0; // of the buffer
    std::size_t filled_ = 0;
    std::string packet_;
};

} // namespace quelvarn::tools
