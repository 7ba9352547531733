#pragma once

#include <QAbstractListModel>

#include <string>
#include <vector>

namespace quelvarn {

// Existing values for a list or combo; the text of one is made when it is drawn.
class ValueModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    // True when other values stand there now.
    bool display(const std::vector<std::string>& values);
    const std::string& value(int row) const { return values_[static_cast<std::size_t>(row)]; }
    // -1 for none.
    int row(const std::string& value) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& position, int textRole) const override;

private:
    std::vector<std::string> values_;
};

} // namespace quelvarn
