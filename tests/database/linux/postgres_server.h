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
        std::filesystem::path programs = findPrograms();
        if (programs.empty())
            return nullptr;
        return std::unique_ptr<PostgresServer>(new PostgresServer(std::move(programs)));
    }

    ~PostgresServer()
    {
        resume();
        stop();
        std::error_code fault;
        std::filesystem::remove_all(folder_, fault);
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
        std::filesystem::remove(folder_ / "daten/postmaster.pid", none); // Left by a crash, it would say "ready".
        server_ = start({"postgres", "-D", (folder_ / "daten").string(), "-k", folder_.string(), "-c",
                         "listen_addresses=", "-c", "fsync=off", "-c", "full_page_writes=off", "-c",
                         "log_min_messages=fatal"});
        waitUntilReady();
    }
    // It hangs: sockets stay open, nothing answers.
    void pause() { signalAll(SIGSTOP); }
    void resume() { signalAll(SIGCONT); }

    // The part of an address behind "?".
    std::string access() const { return "host=" + folder_.string() + "&port=5432&user=quelvarn"; }

private:
    static constexpr std::string_view prefix = "qv-postgres-";

    explicit PostgresServer(std::filesystem::path programs) : programs_(std::move(programs))
    {
        cleanUp();
        std::string drawingTemplate =
            (std::filesystem::temp_directory_path() / prefix).string() + std::to_string(getpid()) + "-XXXXXX";
        folder_ = mkdtemp(drawingTemplate.data());
        if (const passwd* users = serverUsers())
            if (chown(folder_.c_str(), users->pw_uid, users->pw_gid) != 0)
                throw std::runtime_error("chown " + folder_.string());
        const std::string data = (folder_ / "daten").string();
        const int result = waitFor(start({"initdb", "-D", data, "-U", "quelvarn", "--auth=trust", "-E", "UTF8",
                                          "--locale=C.UTF-8", "--no-sync", "--no-instructions"}));
        if (result != 0)
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

    static std::filesystem::path findPrograms()
    {
        std::filesystem::path newest;
        std::error_code fault;
        for (const auto& entry : std::filesystem::directory_iterator("/usr/lib/postgresql", fault))
            if (exists(entry.path() / "bin/initdb") && entry.path() / "bin" > newest)
                newest = entry.path() / "bin";
        return newest;
    }

    // The server refuses to run as root.
    static const passwd* serverUsers()
    {
        if (geteuid() != 0)
            return nullptr;
        const passwd* users = getpwnam("postgres");
        return users ? users : getpwnam("nobody");
    }

    pid_t start(const std::vector<std::string>& command) const
    {
        // The server's programs look for one another beside the path that they are called by.
        const std::string program = (programs_ / command.front()).string();
        std::vector<char*> arguments{const_cast<char*>(program.c_str())};
        for (std::size_t i = 1; i < command.size(); ++i)
            arguments.push_back(const_cast<char*>(command[i].c_str()));
        arguments.push_back(nullptr);
        const passwd* users = serverUsers();
        const pid_t kind = fork();
        if (kind != 0)
            return kind;
        if (users && (setgroups(0, nullptr) != 0 || setgid(users->pw_gid) != 0 || setuid(users->pw_uid) != 0))
            _exit(126);
        prctl(PR_SET_PDEATHSIG, SIGINT); // The server must not outlive a crashed test.
        constexpr mode_t mode = 0600;
        const int log = chdir(folder_.c_str()) == 0 ? open("protokoll.txt", O_WRONLY | O_CREAT | O_APPEND, mode) : -1;
        if (log < 0 || dup2(log, 1) < 0 || dup2(log, 2) < 0)
            _exit(126);
        execv(program.c_str(), arguments.data());
        _exit(127);
    }

    static int waitFor(pid_t kind)
    {
        int result = 0;
        waitpid(kind, &result, 0);
        return result;
    }

    void waitUntilReady() const
    {
        for (int attempt = 0; attempt < 600; ++attempt) {
            std::ifstream file(folder_ / "daten/postmaster.pid");
            for (std::string row; std::getline(file, row);)
                if (row.starts_with("ready"))
                    return;
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        throw std::runtime_error("postgres did not start");
    }

    // Folders of test programs that were killed.
    static void cleanUp()
    {
        std::error_code fault;
        for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::temp_directory_path(), fault)) {
            const std::string name = entry.path().filename().string();
            if (!name.starts_with(prefix))
                continue;
            const pid_t owner = std::atoi(name.c_str() + prefix.size());
            if (owner > 0 && ::kill(owner, 0) != 0 && errno == ESRCH)
                std::filesystem::remove_all(entry.path(), fault);
        }
    }

    std::filesystem::path programs_;
    std::filesystem::path folder_;
    pid_t server_ = 0;
};

} // namespace quelvarn::test
