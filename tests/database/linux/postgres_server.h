#pragma once

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <grp.h>
#include <memory>
#include <pwd.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace quelvarn::test {

// A PostgreSQL server in a temporary folder and on a socket there only. It ends with the program, however that ends.
class PostgresServer
{
public:
    // Null where none is installed.
    static std::unique_ptr<PostgresServer> find()
    {
        std::filesystem::path programme = findProgramme();
        if (programme.empty())
            return nullptr;
        return std::unique_ptr<PostgresServer>(new PostgresServer(std::move(programme)));
    }

    ~PostgresServer()
    {
        resume();
        stop();
        std::error_code fehler;
        std::filesystem::remove_all(ordner_, fehler);
    }
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;

    // Ends it as an administrator does: open connections are ended, everything is kept.
    void stop() { end(SIGINT); }
    // Ends it as a crash does.
    void kill() { end(SIGQUIT); }
    // Once more, under the same address; returns when connections are taken.
    void start()
    {
        if (server_ != 0)
            return;
        std::error_code none;
        std::filesystem::remove(ordner_ / "daten/postmaster.pid", none); // Left by a crash, it would say "ready".
        server_ = starte({"postgres", "-D", (ordner_ / "daten").string(), "-k", ordner_.string(), "-c",
                          "listen_addresses=", "-c", "fsync=off", "-c", "full_page_writes=off", "-c",
                          "log_min_messages=fatal"});
        warteAufBereitschaft();
    }
    // It hangs: sockets stay open, nothing answers.
    void pause() { signalAll(SIGSTOP); }
    void resume() { signalAll(SIGCONT); }

    // The part of an address behind "?".
    std::string zugang() const { return "host=" + ordner_.string() + "&port=5432&user=quelvarn"; }

private:
    static constexpr std::string_view vorsilbe = "qv-postgres-";

    explicit PostgresServer(std::filesystem::path programme) : programme_(std::move(programme))
    {
        raeumeAuf();
        std::string vorlage =
            (std::filesystem::temp_directory_path() / vorsilbe).string() + std::to_string(getpid()) + "-XXXXXX";
        ordner_ = mkdtemp(vorlage.data());
        if (const passwd* nutzer = serverNutzer())
            if (chown(ordner_.c_str(), nutzer->pw_uid, nutzer->pw_gid) != 0)
                throw std::runtime_error("chown " + ordner_.string());
        const std::string daten = (ordner_ / "daten").string();
        const int ergebnis = warteAuf(starte({"initdb", "-D", daten, "-U", "quelvarn", "--auth=trust", "-E", "UTF8",
                                              "--locale=C.UTF-8", "--no-sync", "--no-instructions"}));
        if (ergebnis != 0)
            throw std::runtime_error("initdb");
        start();
    }

    void end(int signal)
    {
        if (server_ == 0)
            return;
        ::kill(server_, signal);
        waitpid(server_, nullptr, 0);
        server_ = 0;
    }

    // The server and the processes that serve connections.
    void signalAll(int signal) const
    {
        if (server_ == 0)
            return;
        const std::string number = std::to_string(server_);
        std::ifstream children("/proc/" + number + "/task/" + number + "/children");
        ::kill(server_, signal);
        for (pid_t child = 0; children >> child;)
            ::kill(child, signal);
    }

    static std::filesystem::path findProgramme()
    {
        std::filesystem::path neueste;
        std::error_code fehler;
        for (const auto& eintrag : std::filesystem::directory_iterator("/usr/lib/postgresql", fehler))
            if (exists(eintrag.path() / "bin/initdb") && eintrag.path() / "bin" > neueste)
                neueste = eintrag.path() / "bin";
        return neueste;
    }

    // The server refuses to run as root.
    static const passwd* serverNutzer()
    {
        if (geteuid() != 0)
            return nullptr;
        const passwd* nutzer = getpwnam("postgres");
        return nutzer ? nutzer : getpwnam("nobody");
    }

    pid_t starte(const std::vector<std::string>& befehl) const
    {
        // The server's programs look for one another beside the path that they are called by.
        const std::string programm = (programme_ / befehl.front()).string();
        std::vector<char*> argumente{const_cast<char*>(programm.c_str())};
        for (std::size_t i = 1; i < befehl.size(); ++i)
            argumente.push_back(const_cast<char*>(befehl[i].c_str()));
        argumente.push_back(nullptr);
        const passwd* nutzer = serverNutzer();
        const pid_t kind = fork();
        if (kind != 0)
            return kind;
        if (nutzer && (setgroups(0, nullptr) != 0 || setgid(nutzer->pw_gid) != 0 || setuid(nutzer->pw_uid) != 0))
            _exit(126);
        prctl(PR_SET_PDEATHSIG, SIGINT); // The server must not outlive a crashed test.
        constexpr mode_t mode = 0600;
        const int log = chdir(ordner_.c_str()) == 0 ? open("protokoll.txt", O_WRONLY | O_CREAT | O_APPEND, mode) : -1;
        if (log < 0 || dup2(log, 1) < 0 || dup2(log, 2) < 0)
            _exit(126);
        execv(programm.c_str(), argumente.data());
        _exit(127);
    }

    static int warteAuf(pid_t kind)
    {
        int ergebnis = 0;
        waitpid(kind, &ergebnis, 0);
        return ergebnis;
    }

    void warteAufBereitschaft() const
    {
        for (int versuch = 0; versuch < 600; ++versuch) {
            std::ifstream datei(ordner_ / "daten/postmaster.pid");
            for (std::string zeile; std::getline(datei, zeile);)
                if (zeile.starts_with("ready"))
                    return;
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        throw std::runtime_error("postgres did not start");
    }

    // Folders of test programs that were killed.
    static void raeumeAuf()
    {
        std::error_code fehler;
        for (const auto& eintrag :
             std::filesystem::directory_iterator(std::filesystem::temp_directory_path(), fehler)) {
            const std::string name = eintrag.path().filename().string();
            if (!name.starts_with(vorsilbe))
                continue;
            const pid_t besitzer = std::atoi(name.c_str() + vorsilbe.size());
            if (besitzer > 0 && ::kill(besitzer, 0) != 0 && errno == ESRCH)
                std::filesystem::remove_all(eintrag.path(), fehler);
        }
    }

    std::filesystem::path programme_;
    std::filesystem::path ordner_;
    pid_t server_ = 0;
};

} // namespace quelvarn::test
