#pragma once

#include "ui/controls/strip.h"

namespace quelvarn {

class DocumentPanels;
class KurzLabel;
class Statustext;

// File name, folder and status of the document shown. The panels are named "StatusBarDatei(1)" and so on.
class StatusBarDatei : public Streifen
{
    Q_OBJECT

public:
    StatusBarDatei();

    void zeigen(const DocumentPanels& modell);

private:
    KurzLabel* dateiname_;
    KurzLabel* pfadname_;
    Statustext* LblKopfStatus_;
};

} // namespace quelvarn
