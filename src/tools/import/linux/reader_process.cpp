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

constexpr std::size_t PUFFER = 1U << 20;
constexpr int PIPE_DES_KINDES = 3;
constexpr auto BLICK_AUF_ABBRUCH = std::chrono::milliseconds(200);

// The reading process keeps nothing of ours but the pipe: no database, no terminal. Its memory is limited,
// since a damaged file may ask for any amount.
void richteKindEin(int pipe, pid_t eltern)
{
    std::signal(SIGINT, SIG_IGN); // The parent decides.
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGPIPE, SIG_DFL);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != eltern)
        _exit(1);
    const int nichts = open("/dev/null", O_RDWR);
    for (int kanal = 0; kanal < PIPE_DES_KINDES; ++kanal)
        dup2(nichts, kanal);
    dup2(pipe, PIPE_DES_KINDES);
    close_range(PIPE_DES_KINDES + 1, ~0U, 0);
    const rlimit keinAbbild{0, 0};
    setrlimit(RLIMIT_CORE, &keinAbbild);
#ifndef __SANITIZE_ADDRESS__ // Its shadow memory alone is larger.
    const rlimit speicher{rlim_t{2} << 30, rlim_t{2} << 30};
    setrlimit(RLIMIT_AS, &speicher);
#endif
}

[[noreturn]] void laufeAlsKind(const Leseprozess::Arbeit& arbeit, int pipe, pid_t eltern)
{
    richteKindEin(pipe, eltern);
    Sender sender(PIPE_DES_KINDES);
    try {
        arbeit(sender);
        sender.sende(Nachrichtenart::Ende, {});
    } catch (const std::exception& fehler) {
        sender.sende(Nachrichtenart::Fehler, fehler.what());
    }
    _exit(0); // No destructor of the parent's objects may run here.
}

} // namespace

void Sender::sende(Nachrichtenart art, std::string_view inhalt)
{
    char kopf[5];
    const auto laenge = static_cast<std::uint32_t>(inhalt.size());
    std::memcpy(kopf, &laenge, sizeof laenge);
    kopf[4] = static_cast<char>(art);
    schreibe(kopf, sizeof kopf);
    schreibe(inhalt.data(), inhalt.size());
}

void Sender::schreibe(const char* daten, std::size_t laenge) const
{
    while (laenge > 0) {
        const ssize_t geschrieben = write(pipe_, daten, laenge);
        if (geschrieben < 0 && errno == EINTR)
            continue;
        if (geschrieben <= 0)
            _exit(1);
        daten += geschrieben;
        laenge -= static_cast<std::size_t>(geschrieben);
    }
}

Leseprozess::Leseprozess(const Arbeit& arbeit, std::chrono::milliseconds frist) : frist_(frist)
{
    int enden[2];
    if (pipe2(enden, O_CLOEXEC) != 0)
        throw werkzeugfehler("Das System gibt keine Leitung zum Leseprozess her.");
    const pid_t eltern = getpid();
    prozess_ = fork();
    if (prozess_ == 0)
        laufeAlsKind(arbeit, enden[1], eltern);
    close(enden[1]);
    pipe_ = enden[0];
    if (prozess_ < 0) {
        close(pipe_);
        throw werkzeugfehler("Das System startet keinen Leseprozess.");
    }
    fcntl(pipe_, F_SETPIPE_SZ, static_cast<int>(PUFFER)); // Only quicker; the default does too.
    puffer_.resize(PUFFER);
}

Leseprozess::~Leseprozess()
{
    beende();
    close(pipe_);
}

void Leseprozess::beende()
{
    if (prozess_ <= 0)
        return;
    kill(prozess_, SIGKILL);
    while (waitpid(prozess_, nullptr, 0) < 0 && errno == EINTR) {
    }
    prozess_ = -1;
}

Nachricht Leseprozess::naechste()
{
    char kopf[5];
    lies(kopf, sizeof kopf);
    std::uint32_t laenge = 0;
    std::memcpy(&laenge, kopf, sizeof laenge);
    if (laenge > NACHRICHT_HOECHSTENS)
        gescheitert();
    nachricht_.resize(laenge);
    lies(nachricht_.data(), laenge);
    const auto art = static_cast<Nachrichtenart>(kopf[4]);
    if (art == Nachrichtenart::Fehler)
        throw werkzeugfehler(nachricht_);
    return {art, nachricht_};
}

void Leseprozess::lies(char* ziel, std::size_t laenge)
{
    while (laenge > 0) {
        if (gelesen_ == gefuellt_)
            fuelle();
        const auto teil = std::min(laenge, gefuellt_ - gelesen_);
        std::memcpy(ziel, puffer_.data() + gelesen_, teil);
        gelesen_ += teil;
        ziel += teil;
        laenge -= teil;
    }
}

void Leseprozess::fuelle()
{
    const auto ende = std::chrono::steady_clock::now() + frist_;
    for (;;) {
        pruefeAbbruch();
        const auto rest =
            std::chrono::duration_cast<std::chrono::milliseconds>(ende - std::chrono::steady_clock::now());
        if (rest.count() <= 0)
            throw werkzeugfehler(fmt::format("Die Access-Datei ist beschädigt: das Lesen kommt seit {} Sekunden nicht "
                                             "voran und wurde beendet.",
                                             std::max<std::int64_t>(1, frist_.count() / 1000)));
        pollfd warten{pipe_, POLLIN, 0};
        if (poll(&warten, 1, static_cast<int>(std::min(rest, BLICK_AUF_ABBRUCH).count())) <= 0)
            continue;
        const ssize_t anzahl = read(pipe_, puffer_.data(), puffer_.size());
        if (anzahl < 0 && errno == EINTR)
            continue;
        if (anzahl <= 0)
            gescheitert();
        gelesen_ = 0;
        gefuellt_ = static_cast<std::size_t>(anzahl);
        return;
    }
}

void Leseprozess::gescheitert()
{
    beende();
    throw werkzeugfehler("Die Access-Datei ist beschädigt: das Lesen ist daran gescheitert. "
                         "Lassen Sie sie in Access komprimieren und reparieren.");
}

} // namespace quelvarn::tools
