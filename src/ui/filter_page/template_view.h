#pragma once

#include <QWidget>

class QLabel;

namespace quelvarn {

class KurzLabel;

// FrmVorlageSmartViewDraft: the template of a branch in the place of its viewer. Without one the drawing is named.
class Vorlagenansicht : public QWidget
{
    Q_OBJECT

public:
    Vorlagenansicht();

    // "" clears it.
    void zeige(const QString& pfad);

protected:
    void changeEvent(QEvent* ereignis) override;

private:
    void zeigeBild();

    QLabel* bild_;
    KurzLabel* name_;
    QLabel* hinweis_;
};

} // namespace quelvarn
