// Sizes, places and habits; what is drawn stands in ToolvaneStyle.cpp.

#include "GaugeDrawing.h"
#include "PanelDrawing.h"
#include "ToolvaneStyle.h"

#include <QAbstractScrollArea>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QStyleOption>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

constexpr int pageMargin = 24;
constexpr int boxGap = 16;
constexpr int innerGap = 12;
constexpr int fieldPadding = 10;
constexpr int frameWidth = 3; // keeps contents clear of the rounded corners
constexpr int buttonPadding = 16;
constexpr int buttonWidth = 96; // the least, so that buttons in a row look alike
constexpr int comboArrowWidth = 30;
constexpr int controlHeight = 32;
constexpr int ringRoom = 4; // for the focus ring around a mark's text
constexpr int messageColumns = 48;

// Fields, buttons and pop-up buttons in one row share one height, which grows with the font.
int heightFor(const QStyleOption &option)
{
    return std::max(controlHeight, option.fontMetrics.height() + 14);
}

bool hasText(const QStyleOption *option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    return button && !button->text.isEmpty();
}

} // namespace

QRect ToolvaneStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                    SubControl subControl, const QWidget *widget) const
{
    if (const auto *box = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
        box && control == CC_GroupBox && drawing::isCard(*box))
        return subControl == SC_GroupBoxLabel ? drawing::titleRect(*box) : drawing::cardRect(*box);
    if (const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option)) {
        if (control == CC_ScrollBar)
            return drawing::scrollBarPart(*bar, subControl);
        if (control == CC_Slider)
            return subControl == SC_SliderHandle ? drawing::sliderHandle(*bar) : bar->rect;
    }
    if (control == CC_ComboBox && subControl != SC_ComboBoxListBoxPopup
        && subControl != SC_ComboBoxFrame) {
        QRect rect = option->rect;
        if (subControl == SC_ComboBoxArrow)
            rect.setLeft(rect.right() - comboArrowWidth + 1);
        else
            rect.adjust(fieldPadding, 2, -comboArrowWidth, -2);
        return visualRect(option->direction, option->rect, rect);
    }
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

QRect ToolvaneStyle::subElementRect(SubElement element, const QStyleOption *option,
                                    const QWidget *widget) const
{
    if (element == SE_PushButtonFocusRect)
        return {}; // the button's face carries its ring
    if (element == SE_CheckBoxFocusRect || element == SE_RadioButtonFocusRect)
        return QProxyStyle::subElementRect(element, option, widget).adjusted(-3, -3, 4, 3);
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (element == SE_LineEditContents && frame && frame->lineWidth > 0)
        return visualRect(option->direction, option->rect,
                          option->rect.adjusted(fieldPadding - 2, 2, 2 - fieldPadding, -2));
    return QProxyStyle::subElementRect(element, option, widget);
}

QSize ToolvaneStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                      const QSize &size, const QWidget *widget) const
{
    const QSize own = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
        return QSize(std::max(size.width() + 2 * buttonPadding, hasText(option) ? buttonWidth : 0),
                     std::max(own.height(), heightFor(*option)));
    case CT_CheckBox:
    case CT_RadioButton:
        return own + QSize(ringRoom, 2 * ringRoom);
    case CT_LineEdit:
        return QSize(own.width() + 2 * fieldPadding, std::max(own.height(), heightFor(*option)));
    case CT_ComboBox:
        return QSize(size.width() + 2 * fieldPadding + comboArrowWidth,
                     std::max(own.height(), heightFor(*option)));
    case CT_ToolButton:
        return QSize(own.width() + 8, std::max(own.height(), heightFor(*option)));
    case CT_MenuBarItem:
        return own + QSize(8, 8);
    case CT_MenuItem:
        return QSize(own.width() + 16, own.height() + 6);
    case CT_HeaderSection:
        return QSize(own.width() + 8, std::max(own.height(), heightFor(*option)));
    case CT_TabBarTab:
        return QSize(own.width() + 2 * innerGap, std::max(own.height(), heightFor(*option)));
    default:
        return own;
    }
}

int ToolvaneStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                               const QWidget *widget) const
{
    const bool inBox = qobject_cast<const QGroupBox *>(widget);
    switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        if (drawing::isPlainBox(widget))
            return 0;
        return inBox ? innerGap : pageMargin;
    case PM_LayoutHorizontalSpacing:
        return innerGap;
    case PM_LayoutVerticalSpacing:
        return inBox ? innerGap : boxGap;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 18;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 8;
    case PM_SliderLength:
        return drawing::knobSize;
    case PM_SliderThickness:
        return drawing::knobSize + 4;
    case PM_TabBarTabOverlap:
    case PM_TabBarBaseOverlap:
    case PM_TabBarTabShiftVertical:
    case PM_TabBarTabShiftHorizontal:
        return 0;
    case PM_DefaultFrameWidth:
        return qobject_cast<const QAbstractScrollArea *>(widget)
            ? frameWidth
            : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_ScrollBarExtent:
        return 12;
    case PM_ToolBarFrameWidth:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_ToolBarItemMargin:
        return 6;
    case PM_ToolBarItemSpacing:
        return 4;
    case PM_ToolBarIconSize:
        return 20;
    case PM_ButtonMargin:
        return 0;
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return 4;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ToolvaneStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                             QStyleHintReturn *data) const
{
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
        return 0;
    case SH_UnderlineShortcut:
        return drawing::mnemonicFlag(QGuiApplication::layoutDirection()) == Qt::TextShowMnemonic;
    case SH_Table_GridLineColor:
        return option ? int(option->palette.color(QPalette::Midlight).rgb()) : 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

// A message box has a short sentence and a longer one below it; Fusion sets both alike and wraps
// the second to the width of the first.
void ToolvaneStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (widget->objectName() != u"qt_msgbox_informativelabel")
        return;
    widget->setMinimumWidth(widget->fontMetrics().averageCharWidth() * messageColumns);
    if (auto *headline = widget->parentWidget()->findChild<QLabel *>(u"qt_msgbox_label"_s)) {
        QFont font = headline->font();
        font.setWeight(QFont::DemiBold);
        headline->setFont(font);
    }
}
