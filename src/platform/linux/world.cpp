#include "platform/linux/world.h"

#include "base/utf8.h"
#include "platform/files.h"
#include "platform/linux/local_time.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <pwd.h>
#include <spawn.h>
#include <sys/utsname.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace quelvarn {
namespace {

constexpr std::size_t longestName = 25;

// The leading number of a text, and the text behind the point that follows it.
std::string takeNumber(std::string_view& text)
{
    const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
    std::string number(text.substr(0, digits));
    text.remove_prefix(std::min(digits + 1, text.size()));
    return number.empty() ? "0" : number;
}

// What a child process gets: a session of its own, no input, no output.
class Detached
{
public:
    Detached()
    {
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawn_file_actions_init(&files_);
        posix_spawn_file_actions_addopen(&files_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&files_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&files_, STDOUT_FILENO, STDERR_FILENO);
    }
    ~Detached()
    {
        posix_spawn_file_actions_destroy(&files_);
        posix_spawnattr_destroy(&attributes_);
    }
    Detached(const Detached&) = delete;
    Detached& operator=(const Detached&) = delete;

    // The process id, or -1.
    pid_t start(const std::string& program, const std::string& argument) const
    {
        std::array<char*, 3> arguments = {const_cast<char*>(program.c_str()), const_cast<char*>(argument.c_str()),
                                          nullptr};
        pid_t process = -1;
        const int error = posix_spawnp(&process, program.c_str(), &files_, &attributes_, arguments.data(), environ);
        return error == 0 ? process : -1;
    }

private:
    posix_spawnattr_t attributes_;
    posix_spawn_file_actions_t files_;
};

} // namespace

DateTime LinuxClock::now() const
{
    return localTime(std::time(nullptr));
}

std::string LinuxEnvironment::computerName() const
{
    utsname system{};
    uname(&system);
    // Without the domain.
    const std::string_view name(system.nodename);
    return std::string(leftCharacters(name.substr(0, name.find('.')), longestName));
}

std::string LinuxEnvironment::userName() const
{
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found);
    // A user without a name in the system's list is known by his number.
    const std::string name = found ? found->pw_name : std::to_string(geteuid());
    return std::string(leftCharacters(name, longestName));
}

SystemVersion LinuxEnvironment::systemVersion() const
{
    utsname system{};
    uname(&system);
    std::string_view release(system.release);
    SystemVersion version;
    version.major = takeNumber(release);
    version.minor = takeNumber(release);
    return version;
}

bool LinuxDefaultApplication::open(std::string_view documentPath)
{
    if (!files_.fileExists(documentPath) && !files_.folderExists(documentPath))
        return false;
    const pid_t process = Detached().start(program_, files_.systemPath(documentPath).string());
    if (process < 0)
        return false;
    // Its end is only waited for so that no dead process stays in the list.
    std::thread([process] { waitpid(process, nullptr, 0); }).detach();
    return true;
}

} // namespace quelvarn
