#include "ui/theme/style.h"

#include "ui/theme/icons.h"

#include <QStyleFactory>

namespace quelvarn {

Programmstil::Programmstil() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int Programmstil::pixelMetric(PixelMetric mass, const QStyleOption* option, const QWidget* widget) const
{
    switch (mass) {
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return 8;
    case PM_SplitterWidth:
        return 5;
    case PM_ToolBarIconSize:
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
        return 16;
    case PM_TreeViewIndentation:
        return 16;
    case PM_ScrollBarExtent:
        return 13;
    default:
        return QProxyStyle::pixelMetric(mass, option, widget);
    }
}

int Programmstil::styleHint(StyleHint frage, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* antwort) const
{
    switch (frage) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_ItemView_ActivateItemOnSingleClick:
        return 0;
    case SH_ToolTip_WakeUpDelay:
        return 500;
    default:
        return QProxyStyle::styleHint(frage, option, widget, antwort);
    }
}

QIcon Programmstil::standardIcon(StandardPixmap bild, const QStyleOption* option, const QWidget* widget) const
{
    switch (bild) {
    case SP_MessageBoxInformation:
        return symbol("information");
    case SP_MessageBoxWarning:
        return symbol("warnung");
    case SP_MessageBoxCritical:
        return symbol("kritisch");
    case SP_MessageBoxQuestion:
        return symbol("frage");
    default:
        return QProxyStyle::standardIcon(bild, option, widget);
    }
}

} // namespace quelvarn
