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
class QtList : public ListWindow
{
public:
    explicit QtList(const std::filesystem::path& copy);
    ~QtList() override;

    // False where the driver is not installed.
    static bool existsIn();

    // Fetches all rows: without them neither the count nor a filter is right.
    void open() override;
    void close() override;
    void filter(const std::string& column, const std::string& text) override;
    void sort(const std::string& column) override;
    void showRow(int row) override;
    int count() const override { return selection_->rowCount(); }

private:
    // Another proxy each time: to change the filter of one that shows a million rows takes it minutes.
    void choose(const QString& text, int column);

    QSqlDatabase database_;
    QTableView view_;
    PaintWatch painter_{view_};
    std::unique_ptr<QSqlTableModel> table_;
    std::unique_ptr<QSortFilterProxyModel> selection_;
};

} // namespace quelvarn::bench
