#include "platform/windows/printers.h"

#include "platform/windows/wide_text.h"

#include <chrono>
#include <cstddef>
#include <future>
#include <thread>
#include <utility>

// The spooler's header needs the types of the system's.
#include <windows.h>
#include <winspool.h>

namespace quelvarn {
namespace {

constexpr int NICHT_GENANNT = 256;
// The server of a connected printer may be switched off; nobody waits for it at the start of the program.
constexpr auto GEDULD = std::chrono::seconds(5);

// Room for structures of the spooler, aligned for them.
using Puffer = std::vector<std::max_align_t>;

Puffer puffer(DWORD bytes)
{
    return Puffer(bytes / sizeof(std::max_align_t) + 1);
}

BYTE* bytesIn(Puffer& inhalt)
{
    return reinterpret_cast<BYTE*>(inhalt.data());
}

class Verbindung
{
public:
    explicit Verbindung(std::wstring name)
    {
        if (!OpenPrinterW(name.data(), &griff_, nullptr))
            griff_ = nullptr;
    }
    ~Verbindung()
    {
        if (griff_)
            ClosePrinter(griff_);
    }
    Verbindung(const Verbindung&) = delete;
    Verbindung& operator=(const Verbindung&) = delete;

    // What the spooler tells at this level; empty when it tells nothing.
    Puffer auskunft(DWORD stufe) const
    {
        DWORD bytes = 0;
        if (!griff_ || GetPrinterW(griff_, stufe, nullptr, 0, &bytes) || GetLastError() != ERROR_INSUFFICIENT_BUFFER)
            return {};
        Puffer inhalt = puffer(bytes);
        if (!GetPrinterW(griff_, stufe, bytesIn(inhalt), bytes, &bytes))
            return {};
        return inhalt;
    }

private:
    HANDLE griff_ = nullptr;
};

void uebernimm(Standarddrucker& drucker, const DEVMODEW& einstellung)
{
    const auto gesetzt = [&](DWORD feld) { return (einstellung.dmFields & feld) != 0; };
    drucker.papiercode = gesetzt(DM_PAPERSIZE) ? einstellung.dmPaperSize : NICHT_GENANNT;
    if (gesetzt(DM_COPIES) && einstellung.dmCopies > 0)
        drucker.exemplare = einstellung.dmCopies;
    if (gesetzt(DM_ORIENTATION))
        drucker.ausrichtung = einstellung.dmOrientation == DMORIENT_LANDSCAPE ? 2 : 1;
}

// True when the spooler has settings at this level, which are those of the printer then.
template <typename Info> bool uebernimmStufe(Standarddrucker& drucker, const Verbindung& verbindung, DWORD stufe)
{
    Puffer inhalt = verbindung.auskunft(stufe);
    if (inhalt.empty())
        return false;
    const DEVMODEW* einstellung = reinterpret_cast<const Info*>(inhalt.data())->pDevMode;
    if (!einstellung)
        return false;
    uebernimm(drucker, *einstellung);
    return true;
}

Standarddrucker einstellungenVon(const std::wstring& name)
{
    Standarddrucker result;
    result.name = narrow(name);
    const Verbindung verbindung(name);
    // The user's own settings, those of the computer, those of the driver.
    if (!uebernimmStufe<PRINTER_INFO_9W>(result, verbindung, 9) &&
        !uebernimmStufe<PRINTER_INFO_8W>(result, verbindung, 8))
        uebernimmStufe<PRINTER_INFO_2W>(result, verbindung, 2);
    return result;
}

// Asked on a thread of its own, which is left behind when the spooler does not come back.
Standarddrucker einstellungenBald(const std::wstring& name)
{
    std::packaged_task<Standarddrucker()> frage([name] { return einstellungenVon(name); });
    std::future<Standarddrucker> antwort = frage.get_future();
    std::thread(std::move(frage)).detach();
    if (antwort.wait_for(GEDULD) == std::future_status::ready)
        return antwort.get();
    Standarddrucker stumm;
    stumm.name = narrow(name);
    return stumm;
}

std::wstring chosenName()
{
    DWORD laenge = 0;
    GetDefaultPrinterW(nullptr, &laenge);
    std::wstring name(laenge, L'\0');
    if (laenge == 0 || !GetDefaultPrinterW(name.data(), &laenge))
        return {};
    name.resize(laenge - 1); // Told with the end mark.
    return name;
}

} // namespace

std::vector<std::string> WindowsDrucker::namen() const
{
    constexpr DWORD WELCHE = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    constexpr DWORD STUFE = 4; // Read from the registry, so no print server is waited for.
    DWORD bytes = 0;
    DWORD anzahl = 0;
    EnumPrintersW(WELCHE, nullptr, STUFE, nullptr, 0, &bytes, &anzahl);
    Puffer inhalt = puffer(bytes);
    if (!EnumPrintersW(WELCHE, nullptr, STUFE, bytesIn(inhalt), bytes, &bytes, &anzahl))
        return {};
    std::vector<std::string> result;
    const auto* drucker = reinterpret_cast<const PRINTER_INFO_4W*>(inhalt.data());
    for (DWORD i = 0; i < anzahl; ++i)
        result.push_back(narrow(drucker[i].pPrinterName));
    return result;
}

// Without a chosen one the first stands in, as in other programs' print dialogs.
std::optional<Standarddrucker> WindowsDrucker::standard() const
{
    if (const std::wstring name = chosenName(); !name.empty())
        return einstellungenBald(name);
    const std::vector<std::string> alle = namen();
    if (alle.empty())
        return std::nullopt;
    return einstellungenBald(wide(alle.front()));
}

} // namespace quelvarn
