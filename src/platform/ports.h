#pragma once

namespace quelvarn {

class Meldungen;
class Uhr;
class Umgebung;
class Dateien;
class Laufwerke;
class Drucker;
class LaufendeProgramme;
class Zwischenablage;
class Standardanwendung;
class Fortschrittsanzeige;

// The doors to the outside world, handed in by the program's entry. All live longer than their users.
struct Ports
{
    Meldungen& meldungen;
    Uhr& uhr;
    Umgebung& umgebung;
    Dateien& dateien;
    Laufwerke& laufwerke;
    Drucker& drucker;
    LaufendeProgramme& programme;
    Zwischenablage& zwischenablage;
    Standardanwendung& standardanwendung;
    Fortschrittsanzeige& fortschritt;
};

} // namespace quelvarn
