#pragma once

#include <QAbstractListModel>

#include <string>
#include <vector>

namespace quelvarn {

// Existing values for a list or combo; the text of one is made when it is drawn.
class Wertemodell : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    // True when other values stand there now.
    bool zeige(const std::vector<std::string>& werte);
    const std::string& wert(int zeile) const { return werte_[static_cast<std::size_t>(zeile)]; }
    // -1 for none.
    int zeile(const std::string& wert) const;

    int rowCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& stelle, int rolle) const override;

private:
    std::vector<std::string> werte_;
};

} // namespace quelvarn
