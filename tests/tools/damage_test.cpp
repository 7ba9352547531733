// What check says of databases that are damaged.

#include "tools/commands_fixture.h"
#include "tools/import_fixture.h"

#include <functional>
#include <random>
#include <set>

namespace quelvarn::test {
namespace {

constexpr std::size_t PAGE = 4096;

// A library that is not built to wipe what it deletes leaves bytes behind that belong to nothing: damage to them is
// none.
#ifdef _WIN32
constexpr int STALE_BYTES = 12;
#else
constexpr int STALE_BYTES = 0;
#endif

class DamagedFile : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(runCommand({"sample", path(file_), "--documents", "400"}).result, tools::GOOD);
        whole_ = read(file_);
        ASSERT_EQ(runCommand({"check", path(file_), "--strict"}).result, tools::GOOD);
    }

    // True when check tells a person of it, in German, and ends with 1.
    bool isTold(const std::string& content) const
    {
        write(file_, content);
        const Call check = runCommand({"check", path(file_)});
        const bool finding = check.out.find("Fehler: ") != std::string::npos;
        const bool refused = check.log.starts_with("Fehler: ");
        EXPECT_EQ(check.result == tools::FAILED, finding || refused) << check.out << check.log;
        return finding || refused;
    }

    TempFolder folder_;
    std::filesystem::path file_ = folder_ / "register.qv";
    std::string whole_;
};

TEST_F(DamagedFile, IsToldWhereverTheDamageLies)
{
    std::minstd_rand random(7); // NOLINT(cert-msc51-cpp): the same damage each time.
    const std::size_t pages = whole_.size() / PAGE;
    const auto somewhere = [&](std::size_t below) {
        return std::uniform_int_distribution<std::size_t>(0, below - 1)(random);
    };
    const auto page = [&](std::string& content, std::size_t number) {
        return content.begin() + static_cast<std::ptrdiff_t>(number * PAGE);
    };
    const struct
    {
        const char* what;
        int attempts;
        int toldAtLeast;
        std::function<void(std::string&)> damage;
    } kinds[] = {
        {"a page of zeros", 60, 60,
         [&](std::string& content) { std::fill_n(page(content, somewhere(pages)), PAGE, '\0'); }},
        {"a page of noise", 60, 60,
         [&](std::string& content) {
             std::generate_n(page(content, somewhere(pages)), PAGE, [&] { return static_cast<char>(random()); });
         }},
        {"another page's content", 60, 58, // An empty table in the place of one.
         [&](std::string& content) {
             const std::size_t from = somewhere(pages);
             std::copy_n(page(content, from), PAGE, page(content, (from + 1 + somewhere(pages - 1)) % pages));
         }},
        {"the head of a page", 60, 57,
         [&](std::string& content) {
             page(content, somewhere(pages))[static_cast<std::ptrdiff_t>(somewhere(8))] ^= '\xFF';
         }},
        {"a sector of zeros", 60, 56 - STALE_BYTES, // Some lie in the unused middle of a page.
         [&](std::string& content) {
             std::fill_n(page(content, 0) + static_cast<std::ptrdiff_t>(somewhere(whole_.size() / 512) * 512), 512,
                         '\0');
         }},
        {"sixteen bytes turned over", 60, 56 - STALE_BYTES, // Numbers become other numbers.
         [&](std::string& content) {
             std::size_t at = 0;
             do
                 at = somewhere(content.size() - 16);
             while (std::count(content.begin() + at, content.begin() + at + 16, '\0') > 8); // Nothing is stored there.
             std::for_each_n(content.begin() + at, 16, [](char& byte) { byte = static_cast<char>(~byte); });
         }},
        {"a cut end", 20, 20, [&](std::string& content) { content.resize(PAGE * (1 + somewhere(pages - 1))); }},
        {"a cut in the middle of a page", 20, 20,
         [&](std::string& content) { content.resize(100 + somewhere(content.size() - PAGE)); }},
    };
    for (const auto& kind : kinds) {
        int told = 0;
        for (int attempt = 0; attempt < kind.attempts; ++attempt) {
            std::string content = whole_;
            kind.damage(content);
            told += content == whole_ || isTold(content);
        }
        EXPECT_GE(told, kind.toldAtLeast) << kind.what;
        std::printf("%-32s %d of %d\n", kind.what, told, kind.attempts);
    }
}

} // namespace
} // namespace quelvarn::test
