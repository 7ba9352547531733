#include "tools/import/linux/reader_process.h"

#include "tools/console.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <fmt/format.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quelvarn::tools {

namespace {

constexpr std::size_t BUFFER = 1U << 20;
constexpr int PIPE_OF_THE_CHILD = 3;
constexpr auto LOOK_FOR_CANCEL = std::chrono::milliseconds(200);

// The reading process keeps nothing of ours but the pipe: no database, no terminal. Its memory is limited,
// since a damaged file may ask for any amount.
void setUpChild(int pipe, pid_t parent)
{
    std::signal(SIGINT, SIG_IGN); // The parent decides.
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGPIPE, SIG_DFL);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent)
        _exit(1);
    const int nothing = open("/dev/null", O_RDWR);
    for (int channel = 0; channel < PIPE_OF_THE_CHILD; ++channel)
        dup2(nothing, channel);
    dup2(pipe, PIPE_OF_THE_CHILD);
    close_range(PIPE_OF_THE_CHILD + 1, ~0U, 0);
    const rlimit noPicture{0, 0};
    setrlimit(RLIMIT_CORE, &noPicture);
#ifndef __SANITIZE_ADDRESS__ // Its shadow memory alone is larger.
    const rlimit memory{rlim_t{2} << 30, rlim_t{2} << 30};
    setrlimit(RLIMIT_AS, &memory);
#endif
}

[[noreturn]] void runAsKind(const ReaderProcess::Work& work, int pipe, pid_t parent)
{
    setUpChild(pipe, parent);
    Sender sender(PIPE_OF_THE_CHILD);
    try {
        work(sender);
        sender.send(PacketKind::End, {});
    } catch (const std::exception& fault) {
        sender.send(PacketKind::Fault, fault.what());
    }
    _exit(0); // No destructor of the parent's objects may run here.
}

} // namespace

void Sender::send(PacketKind kind, std::string_view content)
{
    char heading[5];
    const auto length = static_cast<std::uint32_t>(content.size());
    std::memcpy(heading, &length, sizeof length);
    heading[4] = static_cast<char>(kind);
    write(heading, sizeof heading);
    write(content.data(), content.size());
}

void Sender::write(const char* data, std::size_t length) const
{
    while (length > 0) {
        const ssize_t written = ::write(pipe_, data, length);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            _exit(1);
        data += written;
        length -= static_cast<std::size_t>(written);
    }
}

ReaderProcess::ReaderProcess(const Work& work, std::chrono::milliseconds deadline) : deadline_(deadline)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw toolFault("Das System gibt keine Leitung zum Leseprozess her.");
    const pid_t parent = getpid();
    process_ = fork();
    if (process_ == 0)
        runAsKind(work, ends[1], parent);
    close(ends[1]);
    pipe_ = ends[0];
    if (process_ < 0) {
        close(pipe_);
        throw toolFault("Das System startet keinen Leseprozess.");
    }
    fcntl(pipe_, F_SETPIPE_SZ, static_cast<int>(BUFFER)); // Only quicker; the default does too.
    buffer_.resize(BUFFER);
}

ReaderProcess::~ReaderProcess()
{
    end();
    close(pipe_);
}

void ReaderProcess::end()
{
    if (process_ <= 0)
        return;
    kill(process_, SIGKILL);
    while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
    }
    process_ = -1;
}

Packet ReaderProcess::next()
{
    char heading[5];
    read(heading, sizeof heading);
    std::uint32_t length = 0;
    std::memcpy(&length, heading, sizeof length);
    if (length > PACKET_LIMIT)
        failed();
    packet_.resize(length);
    read(packet_.data(), length);
    const auto kind = static_cast<PacketKind>(heading[4]);
    if (kind == PacketKind::Fault)
        throw toolFault(packet_);
    return {kind, packet_};
}

void ReaderProcess::read(char* target, std::size_t length)
{
    while (length > 0) {
        if (read_ == filled_)
            fill();
        const auto part = std::min(length, filled_ - read_);
        std::memcpy(target, buffer_.data() + read_, part);
        read_ += part;
        target += part;
        length -= part;
    }
}

void ReaderProcess::fill()
{
    const auto end = std::chrono::steady_clock::now() + deadline_;
    for (;;) {
        checkCancel();
        const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        if (rest.count() <= 0)
            throw toolFault(fmt::format("Die Access-Datei ist beschädigt: das Lesen kommt seit {} Sekunden nicht "
                                        "voran und wurde beendet.",
                                        std::max<std::int64_t>(1, deadline_.count() / 1000)));
        pollfd wait{pipe_, POLLIN, 0};
        if (poll(&wait, 1, static_cast<int>(std::min(rest, LOOK_FOR_CANCEL).count())) <= 0)
            continue;
        const ssize_t count = ::read(pipe_, buffer_.data(), buffer_.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            failed();
        read_ = 0;
        filled_ = static_cast<std::size_t>(count);
        return;
    }
}

void ReaderProcess::failed()
{
    end();
    throw toolFault("Die Access-Datei ist beschädigt: das Lesen ist daran gescheitert. "
                    "Lassen Sie sie in Access komprimieren und reparieren.");
}

} // namespace quelvarn::tools
