#include "tools/import/access_quelle.h"

#include "tools/konsole.h"

namespace quelvarn::tools {

struct AccessQuelle::Prozess
{};

AccessQuelle::AccessQuelle(const std::filesystem::path&, std::span<const std::string>, std::chrono::milliseconds)
{
    throw werkzeugfehler("Unter Windows wird die Access-Datei an Ort und Stelle benutzt; übernommen wird sie mit "
                         "qvadmin unter Linux.");
}

AccessQuelle::~AccessQuelle() = default;

void AccessQuelle::lies(const std::function<void(const Quelltabelle&)>&,
                        const std::function<void(std::span<const Zelle>)>&)
{}

} // namespace quelvarn::tools
