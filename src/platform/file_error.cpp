#include "platform/file_error.h"

#include <fmt/format.h>

namespace quelvarn {
namespace {

struct Reason
{
    std::errc fault;
    int number;
    std::string_view text;
};

// The numbers that users know from their other programs.
constexpr Reason reasons[] = {
    {std::errc::no_such_file_or_directory, 53, "Datei oder Ordner nicht gefunden"},
    {std::errc::not_a_directory, 76, "Pfad nicht gefunden"},
    {std::errc::no_such_device, 68, "Laufwerk nicht verfügbar"},
    {std::errc::permission_denied, 70, "Zugriff verweigert"},
    {std::errc::operation_not_permitted, 70, "Zugriff verweigert"},
    {std::errc::read_only_file_system, 70, "Datenträger ist schreibgeschützt"},
    {std::errc::file_exists, 58, "Datei existiert bereits"},
    {std::errc::is_a_directory, 75, "Pfad ist ein Ordner"},
    {std::errc::directory_not_empty, 75, "Ordner ist nicht leer"},
    {std::errc::no_space_on_device, 61, "Datenträger voll"},
    {std::errc::file_too_large, 61, "Datei ist zu groß"},
    {std::errc::io_error, 57, "Ein-/Ausgabefehler"},
    {std::errc::too_many_files_open, 67, "Zu viele geöffnete Dateien"},
    {std::errc::text_file_busy, 55, "Datei ist in Benutzung"},
    {std::errc::device_or_resource_busy, 55, "Datei ist in Benutzung"},
    {std::errc::filename_too_long, 52, "Dateiname ist zu lang"},
    {std::errc::invalid_argument, 52, "Dateiname ist ungültig"},
    {std::errc::not_supported, 73, "Das Dateisystem unterstützt dies nicht"},
    {std::errc::operation_not_supported, 73, "Das Dateisystem unterstützt dies nicht"},
};

} // namespace

RuntimeError fileFault(const std::error_code& reason, std::string_view documentPath)
{
    for (const Reason& known : reasons) {
        if (reason == known.fault)
            return {known.number, "Dateisystem", fmt::format("{}: {}", known.text, documentPath)};
    }
    return {reason.value(), "Dateisystem", fmt::format("{}: {}", reason.message(), documentPath)};
}

RuntimeError fileFault(std::errc reason, std::string_view documentPath)
{
    return fileFault(std::make_error_code(reason), documentPath);
}

} // namespace quelvarn
