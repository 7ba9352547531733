#include "tools/import/reader_protocol.h"

#include "tools/console.h"

#include <cstring>

namespace quelvarn::tools {

void Packer::text(std::string_view text)
{
    zahl32(static_cast<std::uint32_t>(text.size()));
    bytes_.append(text);
}

void Packer::katalog(const Katalog& katalog)
{
    zahl32(static_cast<std::uint32_t>(katalog.tabellen.size()));
    for (const auto& tabelle : katalog.tabellen) {
        text(tabelle.name);
        zahl32(tabelle.zeilen);
        zahl32(static_cast<std::uint32_t>(tabelle.spalten.size()));
        for (const auto& spalte : tabelle.spalten) {
            text(spalte.name);
            zahl8(static_cast<std::uint8_t>(spalte.art));
        }
    }
    zahl32(static_cast<std::uint32_t>(katalog.uebrige.size()));
    for (const auto& name : katalog.uebrige)
        text(name);
}

void Packer::ganzzahl(std::int64_t wert)
{
    zelle(Zellart::Ganzzahl);
    roh(&wert, sizeof wert);
}

void Packer::gleitkomma(Zellart art, double wert)
{
    zelle(art);
    roh(&wert, sizeof wert);
}

void Packer::textzelle(std::string_view wert)
{
    zelle(Zellart::Text);
    text(wert);
}

std::string_view Entpacker::nimm(std::size_t anzahl)
{
    if (anzahl > rest_.size())
        throw werkzeugfehler("Die Access-Datei ist beschädigt: ihr Inhalt kommt unvollständig an.");
    const auto teil = rest_.substr(0, anzahl);
    rest_.remove_prefix(anzahl);
    return teil;
}

template <typename Zahl> Zahl Entpacker::nimmZahl()
{
    Zahl zahl;
    std::memcpy(&zahl, nimm(sizeof zahl).data(), sizeof zahl);
    return zahl;
}

std::uint8_t Entpacker::zahl8()
{
    return nimmZahl<std::uint8_t>();
}

std::uint32_t Entpacker::zahl32()
{
    return nimmZahl<std::uint32_t>();
}

std::string_view Entpacker::text()
{
    return nimm(zahl32());
}

Katalog Entpacker::katalog()
{
    Katalog katalog;
    for (auto tabellen = zahl32(); tabellen > 0; --tabellen) {
        Quelltabelle tabelle{.name = std::string(text()), .spalten = {}, .zeilen = zahl32()};
        for (auto spalten = zahl32(); spalten > 0; --spalten) {
            Quellspalte spalte{.name = std::string(text())};
            spalte.art = static_cast<Spaltenart>(zahl8());
            tabelle.spalten.push_back(std::move(spalte));
        }
        katalog.tabellen.push_back(std::move(tabelle));
    }
    for (auto namen = zahl32(); namen > 0; --namen)
        katalog.uebrige.emplace_back(text());
    return katalog;
}

Zelle Entpacker::zelle()
{
    Zelle zelle{.art = static_cast<Zellart>(zahl8())};
    switch (zelle.art) {
    case Zellart::Ganzzahl:
        zelle.ganzzahl = nimmZahl<std::int64_t>();
        break;
    case Zellart::Gleitkomma:
    case Zellart::Datum:
        zelle.gleitkomma = nimmZahl<double>();
        break;
    case Zellart::Text:
        zelle.text = text();
        break;
    default:
        break;
    }
    return zelle;
}

} // namespace quelvarn::tools
