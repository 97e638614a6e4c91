#include "ToolvaneStyle.h"

#include "ControlDrawing.h"
#include "GaugeDrawing.h"
#include "NamedImage.h"
#include "PanelDrawing.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>

using namespace Qt::StringLiterals;

// A scroll bar stands on the ground of what it scrolls.
static QPalette::ColorRole groundBelow(const QWidget *scrollBar)
{
    const QWidget *holder = scrollBar ? scrollBar->parentWidget() : nullptr;
    const auto *area =
        qobject_cast<const QAbstractScrollArea *>(holder ? holder->parentWidget() : nullptr);
    return area ? area->viewport()->backgroundRole() : QPalette::Base;
}

ToolvaneStyle::ToolvaneStyle() : QProxyStyle(u"Fusion"_s)
{
}

void ToolvaneStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                  QPainter *painter, const QWidget *widget) const
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    switch (element) {
    case PE_PanelLineEdit:
        if (frame && frame->lineWidth > 0)
            return drawing::field(*painter, *frame);
        break;
    case PE_Frame:
        if (widget && widget->inherits("QComboBoxPrivateContainer"))
            return drawing::edge(*painter, *option); // a pop-up window is square
        if (frame && frame->lineWidth > 0)
            return drawing::frame(*painter, *option);
        break;
    case PE_PanelButtonCommand:
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option))
            return drawing::pushButton(*painter, *button);
        break;
    case PE_PanelButtonTool:
        return drawing::toolButton(*painter, *option);
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return drawing::checkMark(*painter, *option);
    case PE_IndicatorRadioButton:
        return drawing::radioMark(*painter, *option);
    case PE_FrameTabWidget:
        return drawing::card(*painter, *option, option->rect);
    case PE_FrameTabBarBase:
        return;
    case PE_FrameMenu:
        return drawing::edge(*painter, *option);
    case PE_FrameFocusRect:
        return drawing::focusRing(*painter, *option);
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ToolvaneStyle::drawControl(ControlElement element, const QStyleOption *option,
                                QPainter *painter, const QWidget *widget) const
{
    switch (element) {
    case CE_PushButtonBevel: // Qt shows neither pointer nor keyboard on a flat button at rest
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
            button && !(button->features & QStyleOptionButton::HasMenu))
            return drawing::pushButton(*painter, *button);
        break;
    case CE_PushButtonLabel:
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
            button && !(button->features & QStyleOptionButton::HasMenu))
            return drawing::pushButtonLabel(*painter, *button);
        break;
    case CE_MenuItem:
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
            item && item->state & State_Selected && item->state & State_Enabled) {
            const auto chosen = drawing::chosenMenuItem(*painter, *item);
            return QProxyStyle::drawControl(element, &chosen, painter, widget);
        }
        break;
    case CE_ToolButtonLabel:
        if (const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option);
            button && button->toolButtonStyle == Qt::ToolButtonTextBesideIcon)
            return drawing::iconAndText(*painter, *button,
                                        {button->icon, button->iconSize, button->text});
        break;
    case CE_ProgressBar:
        if (const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(option)) {
            if (drawing::isBusy(*bar))
                m_busy.keepMoving(widget);
            return drawing::progressBar(*painter, *bar, m_busy.phase(widget));
        }
        break;
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
        return drawing::headerSection(*painter, *option);
    case CE_TabBarTabShape:
        return drawing::tab(*painter, *option);
    case CE_ToolBar:
        return drawing::toolBar(*painter, *option);
    case CE_MenuBarEmptyArea:
        return painter->fillRect(option->rect, option->palette.color(QPalette::Window));
    case CE_MenuBarItem:
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option)) {
            drawing::menuBarItem(*painter, *option);
            const int flags =
                Qt::AlignCenter | Qt::TextSingleLine | drawing::mnemonicFlag(option->direction);
            return drawItemText(painter, item->rect, flags, item->palette,
                                item->state & State_Enabled, item->text, QPalette::WindowText);
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void ToolvaneStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                       QPainter *painter, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    switch (control) {
    case CC_GroupBox:
        if (const auto *box = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
            box && drawing::isCard(*box))
            return drawing::groupBox(*painter, *box, drawing::isPlainBox(widget));
        break;
    case CC_ComboBox:
        if (const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option))
            return drawing::comboBox(*painter, *combo,
                                     subControlRect(control, option, SC_ComboBoxArrow, widget));
        break;
    case CC_Slider:
        if (slider)
            return drawing::slider(*painter, *slider);
        break;
    case CC_ScrollBar:
        if (slider)
            return drawing::scrollBar(*painter, *slider, groundBelow(widget));
        break;
    default:
        break;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QIcon ToolvaneStyle::standardIcon(StandardPixmap standard, const QStyleOption *option,
                                  const QWidget *widget) const
{
    switch (standard) {
    case SP_MessageBoxInformation:
        return namedImage(u"information"_s);
    case SP_MessageBoxQuestion:
        return namedImage(u"question"_s);
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
        return namedImage(u"warning"_s);
    case SP_ToolBarHorizontalExtensionButton: // asked for at the start, to be seen hardly ever
    case SP_ToolBarVerticalExtensionButton:
        return namedImage(u"more"_s);
    default:
        return QProxyStyle::standardIcon(standard, option, widget);
    }
}
