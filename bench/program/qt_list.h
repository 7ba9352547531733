#pragma once

#include "bench/program/list_window.h"
#include "bench/program/painted.h"

#include <QSortFilterProxyModel>
#include <QSqlDatabase>
#include <QSqlTableModel>
#include <QTableView>

#include <filesystem>
#include <memory>

namespace quelvarn::bench {

// The list as a program shows it that takes the ready-made parts of Qt: the peer. It works on a copy of PartTabelle
// whose texts compare as bytes, since the driver of Qt knows no collation of ours.
class QtListe : public Listenfenster
{
public:
    explicit QtListe(const std::filesystem::path& kopie);
    ~QtListe() override;

    // False where the driver is not installed.
    static bool gibtEs();

    // Fetches all rows: without them neither the count nor a filter is right.
    void oeffne() override;
    void schliesse() override;
    void filtere(const std::string& spalte, const std::string& text) override;
    void sortiere(const std::string& spalte) override;
    void zeigeZeile(int zeile) override;
    int anzahl() const override { return auswahl_->rowCount(); }

private:
    // Another proxy each time: to change the filter of one that shows a million rows takes it minutes.
    void waehleAus(const QString& text, int spalte);

    QSqlDatabase datenbank_;
    QTableView ansicht_;
    Malwaechter maler_{ansicht_};
    std::unique_ptr<QSqlTableModel> tabelle_;
    std::unique_ptr<QSortFilterProxyModel> auswahl_;
};

} // namespace quelvarn::bench
