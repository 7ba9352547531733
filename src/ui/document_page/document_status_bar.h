#pragma once

#include "ui/controls/strip.h"

namespace quelvarn {

class DocumentPanels;
class ShortLabel;
class StatusCaption;

// File name, folder and status of the document shown. The panels are named "StatusBarDatei(1)" and so on.
class StatusBarDatei : public Strip
{
    Q_OBJECT

public:
    StatusBarDatei();

    void refresh(const DocumentPanels& model);

private:
    ShortLabel* fileName_;
    ShortLabel* pathName_;
    StatusCaption* LblKopfStatus_;
};

} // namespace quelvarn
