#pragma once

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#ifdef __linux__
#include <cerrno>
#include <csignal>
#include <grp.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace quelvarn::test {

// A PostgreSQL server for one test program: started when first asked for, in a temporary folder and on a socket
// there only. It ends with the program, however that ends.
class PostgresCluster
{
public:
    // Null where no server is installed.
    static PostgresCluster* find()
    {
#ifdef __linux__
        static const std::filesystem::path programme = findProgramme();
        if (programme.empty())
            return nullptr;
        static PostgresCluster cluster(programme);
        return &cluster;
#else
        return nullptr;
#endif
    }

#ifdef __linux__
    // Address of a new, empty database.
    std::string neueDatenbank()
    {
        const std::string name = "qv_test_" + std::to_string(++zaehler_);
        psql(adresse("postgres"), "CREATE DATABASE " + name);
        return adresse(name);
    }

    // What psql prints for the statement: a line a row, columns divided by "|".
    std::string psql(const std::string& adresse, const std::string& sql) const
    {
        const std::filesystem::path skript = ordner_ / "anweisung.sql";
        std::ofstream(skript) << sql << ";\n";
        const std::string befehl = (programme_ / "psql").string() + " -XAtq -v ON_ERROR_STOP=1 -d '" + adresse +
                                   "' -f '" + skript.string() + "'";
        std::FILE* ausgabe = popen(befehl.c_str(), "r");
        std::string text;
        char puffer[4096];
        while (const std::size_t gelesen = std::fread(puffer, 1, sizeof puffer, ausgabe))
            text.append(puffer, gelesen);
        if (pclose(ausgabe) != 0)
            throw std::runtime_error("psql: " + sql.substr(0, 200));
        return text;
    }

    ~PostgresCluster()
    {
        kill(server_, SIGINT);
        waitpid(server_, nullptr, 0);
        std::error_code fehler;
        std::filesystem::remove_all(ordner_, fehler);
    }

private:
    static constexpr std::string_view vorsilbe = "qv-postgres-";

    explicit PostgresCluster(std::filesystem::path programme) : programme_(std::move(programme))
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
        server_ = starte({"postgres", "-D", daten, "-k", ordner_.string(), "-c", "listen_addresses=", "-c", "fsync=off",
                          "-c", "full_page_writes=off", "-c", "log_min_messages=fatal"});
        warteAufBereitschaft();
    }

    std::string adresse(std::string_view datenbank) const
    {
        return "postgresql:///" + std::string(datenbank) + "?host=" + ordner_.string() + "&user=quelvarn";
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
        if (chdir(ordner_.c_str()) != 0 || !std::freopen("protokoll.txt", "a", stdout) || dup2(1, 2) < 0)
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
            if (besitzer > 0 && kill(besitzer, 0) != 0 && errno == ESRCH)
                std::filesystem::remove_all(eintrag.path(), fehler);
        }
    }

    std::filesystem::path programme_;
    std::filesystem::path ordner_;
    pid_t server_ = 0;
    int zaehler_ = 0;
#else
    std::string neueDatenbank()
    {
        throw std::runtime_error("no server");
    }
    std::string psql(const std::string&, const std::string&) const
    {
        throw std::runtime_error("no server");
    }
#endif
};

} // namespace quelvarn::test
