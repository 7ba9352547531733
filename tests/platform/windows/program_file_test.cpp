#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <windows.h>

namespace {

// qvadmin.exe, which lies beside this test.
std::wstring qvadmin()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L'\\') + 1) + L"qvadmin.exe";
}

std::string manifestOf(const std::wstring& program)
{
    const HMODULE file = LoadLibraryExW(program.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const HRSRC found = FindResourceW(file, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24));
    if (!file || !found)
        return {};
    const auto* text = static_cast<const char*>(LockResource(LoadResource(file, found)));
    std::string manifest(text, SizeofResource(file, found));
    FreeLibrary(file);
    return manifest;
}

} // namespace

TEST(ProgramFile, TextsAreUtf8InEveryProgram)
{
    EXPECT_EQ(GetACP(), static_cast<UINT>(CP_UTF8));
    const std::string manifest = manifestOf(qvadmin());
    for (const char* part : {">UTF-8</activeCodePage>", ">true</longPathAware>", "level=\"asInvoker\"",
                             "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}", "name=\"qvadmin\""})
        EXPECT_THAT(manifest, testing::HasSubstr(part));
    EXPECT_THAT(manifest, testing::Not(testing::HasSubstr("dpiAware")));
}

TEST(ProgramFile, TellsItsVersionInGerman)
{
    const std::wstring program = qvadmin();
    std::vector<BYTE> version(GetFileVersionInfoSizeW(program.c_str(), nullptr));
    ASSERT_FALSE(version.empty());
    ASSERT_TRUE(GetFileVersionInfoW(program.c_str(), 0, static_cast<DWORD>(version.size()), version.data()));
    void* at = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(version.data(), L"\\", &at, &length));
    EXPECT_EQ(HIWORD(static_cast<const VS_FIXEDFILEINFO*>(at)->dwProductVersionMS), 2);
    ASSERT_TRUE(VerQueryValueW(version.data(), L"\\StringFileInfo\\040704b0\\FileDescription", &at, &length));
    EXPECT_STREQ(static_cast<const wchar_t*>(at), L"Quelvarn: Verwaltung der Register");
}
