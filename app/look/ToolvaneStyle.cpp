#include "ToolvaneStyle.h"

#include "Drawing.h"
#include "NamedImage.h"

#include <QAbstractScrollArea>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QTime>
#include <QTimer>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace
{

constexpr int pageMargin = 24;
constexpr int boxGap = 16;
constexpr int innerGap = 12;
constexpr int titleGap = 6; // between a card and its title
constexpr int fieldPadding = 10;
constexpr int iconSpacing = 4; // Fusion's
constexpr int frameWidth = 3; // keeps contents clear of the rounded corners
constexpr int minControlHeight = 32;
constexpr int messageColumns = 48;
constexpr int busyStep = 33; // milliseconds
constexpr int busyRound = 1600; // milliseconds

constexpr std::pair<QStyle::PixelMetric, int> fixedMetrics[] = {
    {QStyle::PM_LayoutHorizontalSpacing, innerGap},
    {QStyle::PM_IndicatorWidth, 18},
    {QStyle::PM_IndicatorHeight, 18},
    {QStyle::PM_CheckBoxLabelSpacing, 8},
    {QStyle::PM_SliderLength, drawing::knobSize},
    {QStyle::PM_SliderThickness, drawing::knobSize + 4},
    {QStyle::PM_TabBarBaseOverlap, 0},
    {QStyle::PM_TabBarTabShiftVertical, 0},
    {QStyle::PM_ScrollBarExtent, 12},
    {QStyle::PM_ToolBarFrameWidth, 0},
    {QStyle::PM_ToolBarItemMargin, 6},
    {QStyle::PM_ToolBarItemSpacing, 4},
    {QStyle::PM_ToolBarIconSize, 20},
    {QStyle::PM_ButtonMargin, 12},
    {QStyle::PM_MenuHMargin, 4},
    {QStyle::PM_MenuVMargin, 4},
};

// The room that contents get in addition to Fusion's. Controls in one row share one height, which
// grows with the font.
constexpr struct ContentsRoom {
    QStyle::ContentsType type;
    QSize more;
    bool isControl;
} contentsRooms[] = {
    {QStyle::CT_PushButton, QSize(16, 0), true}, // Fusion's are at least 80 wide
    {QStyle::CT_LineEdit, QSize(20, 0), true},
    {QStyle::CT_ComboBox, QSize(20, 0), true},
    {QStyle::CT_ToolButton, QSize(8, 0), true},
    {QStyle::CT_TabBarTab, QSize(24, 0), true},
    {QStyle::CT_HeaderSection, QSize(8, 0), true},
    {QStyle::CT_CheckBox, QSize(4, 8), false}, // for the focus ring around the text
    {QStyle::CT_MenuBarItem, QSize(8, 8), false},
    {QStyle::CT_MenuItem, QSize(16, 6), false},
};

constexpr std::pair<QStyle::StandardPixmap, QStringView> ownIcons[] = {
    {QStyle::SP_MessageBoxInformation, u"information"},
    {QStyle::SP_MessageBoxQuestion, u"question"},
    {QStyle::SP_MessageBoxWarning, u"warning"},
    {QStyle::SP_MessageBoxCritical, u"warning"},
    {QStyle::SP_ToolBarHorizontalExtensionButton, u"more"}, // loaded at the start, seldom shown
};

// A flat box shows its title alone, so that no card lies on a card.
int layoutMargin(const QWidget *widget)
{
    const auto *box = qobject_cast<const QGroupBox *>(widget);
    if (!box)
        return pageMargin;
    return box->isFlat() ? 0 : innerGap;
}

QFont demiBold(QFont font)
{
    font.setWeight(QFont::DemiBold);
    return font;
}

// Fusion renders an icon in the text colour of plain controls; on the accent it needs another.
QIcon highlighted(const QIcon &icon, const QSize &size, const QPainter &painter)
{
    return icon.isNull() ? icon
                         : icon.pixmap(size, painter.device()->devicePixelRatio(), QIcon::Selected);
}

QStyleOptionButton accented(QStyleOptionButton button, const QPainter &painter)
{
    button.palette.setBrush(QPalette::Button, button.palette.highlight());
    button.palette.setBrush(QPalette::ButtonText, button.palette.highlightedText());
    button.icon = highlighted(button.icon, button.iconSize, painter);
    return button;
}

// From right to left, Fusion puts the text beside an icon at the left end of the label.
QStyleOptionButton withoutSlack(QStyleOptionButton label)
{
    const QPoint center = label.rect.center();
    const int text = label.fontMetrics.size(Qt::TextShowMnemonic, label.text).width();
    label.rect.setWidth(label.iconSize.width() + (text > 0 ? text + iconSpacing : 0));
    label.rect.moveCenter(center);
    return label;
}

// What Fusion draws in the place of a push button or its label; nothing if it draws that as it is.
std::optional<QStyleOptionButton> adaptedButton(QStyle::ControlElement element,
                                                const QStyleOption *option, const QPainter &painter)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (button && element == QStyle::CE_PushButton && button->state & QStyle::State_Enabled
        && button->features & QStyleOptionButton::DefaultButton)
        return accented(*button, painter);
    if (button && element == QStyle::CE_PushButtonLabel && !button->icon.isNull()
        && button->direction == Qt::RightToLeft)
        return withoutSlack(*button);
    return {};
}

// How far a busy bar has come. Each paint of one leads to the next, so that a bar that is hidden or
// finished costs nothing.
qreal busyPhase(const QWidget *widget)
{
    static const char pending[] = "busyStepPending";
    auto *bar = const_cast<QWidget *>(widget);
    if (!bar || bar->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, bar) <= 0)
        return 0.5;
    if (!bar->property(pending).toBool()) {
        bar->setProperty(pending, true);
        QTimer::singleShot(busyStep, bar, [bar] {
            bar->setProperty(pending, false);
            bar->update();
        });
    }
    return QTime::currentTime().msecsSinceStartOfDay() % busyRound / qreal(busyRound);
}

} // namespace

ToolvaneStyle::ToolvaneStyle() : QProxyStyle(u"Fusion"_s)
{
}

void ToolvaneStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                  QPainter *painter, const QWidget *widget) const
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    switch (element) {
    case PE_PanelLineEdit:
    case PE_Frame:
        if (frame && frame->lineWidth > 0 && widget && !widget->isWindow())
            return drawing::field(*painter, *option);
        break;
    case PE_FrameTabWidget:
        return drawing::card(*painter, *option);
    case PE_FrameTabBarBase:
        return;
    case PE_FrameGroupBox:
        if (frame && !(frame->features & QStyleOptionFrame::Flat))
            drawing::card(*painter, *option);
        return;
    case PE_PanelButtonCommand:
    case PE_PanelButtonTool:
        return drawing::button(*painter, *option);
    case PE_IndicatorCheckBox:
        return drawing::checkMark(*painter, *option);
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
    if (const auto button = adaptedButton(element, option, *painter))
        return QProxyStyle::drawControl(element, &*button, painter, widget);
    switch (element) {
    case CE_PushButtonBevel: // Qt shows neither pointer nor focus on a flat button
        return drawing::button(*painter, *option);
    case CE_MenuItem:
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
            item && item->state & State_Selected) {
            QStyleOptionMenuItem chosen = *item;
            const int side = item->maxIconWidth;
            chosen.icon = highlighted(item->icon, QSize(side, side), *painter);
            return QProxyStyle::drawControl(element, &chosen, painter, widget);
        }
        break;
    case CE_ToolButtonLabel:
        if (const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option)) {
            QStyleOptionToolButton padded = *button;
            padded.rect.adjust(4, 0, -4, 0);
            return QProxyStyle::drawControl(element, &padded, painter, widget);
        }
        break;
    case CE_ProgressBar:
        if (const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(option)) {
            const bool isBusy = bar->minimum == bar->maximum;
            return drawing::progressBar(*painter, *bar, isBusy ? busyPhase(widget) : 0);
        }
        break;
    case CE_TabBarTabShape:
        return drawing::tab(*painter, *option);
    case CE_ToolBar:
        return drawing::ruledArea(*painter, *option, QPalette::Window);
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
        return drawing::ruledArea(*painter, *option, QPalette::Base);
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void ToolvaneStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                       QPainter *painter, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_Slider && slider && slider->orientation == Qt::Horizontal)
        return drawing::slider(*painter, *slider,
                               subControlRect(control, option, SC_SliderHandle, widget));
    if (control == CC_ScrollBar && slider)
        return drawing::scrollBar(*painter, *slider,
                                  subControlRect(control, option, SC_ScrollBarSlider, widget));
    const QFont font = painter->font();
    if (control == CC_GroupBox)
        painter->setFont(demiBold(font));
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    painter->setFont(font);
}

QRect ToolvaneStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                    SubControl subControl, const QWidget *widget) const
{
    if (const auto *box = qstyleoption_cast<const QStyleOptionGroupBox *>(option)) {
        const int title = box->text.isEmpty() ? 0 : box->fontMetrics.height() + titleGap;
        return subControl == SC_GroupBoxLabel ? QRect(2, 0, box->rect.width() - 4, title)
                                              : box->rect.adjusted(0, title, 0, 0);
    }
    if (const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
        bar && control == CC_ScrollBar) {
        // Fusion's bar has buttons at both ends: ours is the part between them.
        const int extent = pixelMetric(PM_ScrollBarExtent, option, widget);
        const QPoint button =
            bar->orientation == Qt::Horizontal ? QPoint(extent, 0) : QPoint(0, extent);
        QStyleOptionSlider longer = *bar;
        longer.rect.setBottomRight(longer.rect.bottomRight() + 2 * button);
        const QRect part = QProxyStyle::subControlRect(control, &longer, subControl, widget);
        return part.translated(-button);
    }
    const QRect rect = QProxyStyle::subControlRect(control, option, subControl, widget);
    const bool isComboText = control == CC_ComboBox && subControl == SC_ComboBoxEditField;
    return isComboText ? rect.adjusted(4, 0, -4, 0) : rect;
}

QRect ToolvaneStyle::subElementRect(SubElement element, const QStyleOption *option,
                                    const QWidget *widget) const
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (element == SE_LineEditContents && frame && frame->lineWidth > 0)
        return option->rect.adjusted(fieldPadding - 2, 2, 2 - fieldPadding, -2);
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    return element == SE_CheckBoxFocusRect ? rect.adjusted(-3, -3, 4, 3) : rect;
}

QSize ToolvaneStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                      const QSize &size, const QWidget *widget) const
{
    const QSize fusion = QProxyStyle::sizeFromContents(type, option, size, widget);
    const auto *room = std::ranges::find(contentsRooms, type, &ContentsRoom::type);
    if (room == std::end(contentsRooms))
        return fusion;
    const int minHeight =
        room->isControl ? std::max(minControlHeight, option->fontMetrics.height() + 14) : 0;
    return (fusion + room->more).expandedTo(QSize(0, minHeight));
}

int ToolvaneStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                               const QWidget *widget) const
{
    switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return layoutMargin(widget);
    case PM_LayoutVerticalSpacing:
        return qobject_cast<const QGroupBox *>(widget) ? innerGap : boxGap;
    case PM_DefaultFrameWidth:
        if (qobject_cast<const QAbstractScrollArea *>(widget))
            return frameWidth;
        break;
    default:
        for (const auto &[known, pixels] : fixedMetrics)
            if (known == metric)
                return pixels;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int ToolvaneStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                             QStyleHintReturn *data) const
{
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
        return 0;
    case SH_UnderlineShortcut: // Arabic letters fall apart if Qt underlines one of them
        return QGuiApplication::layoutDirection() == Qt::LeftToRight;
    case SH_Table_GridLineColor:
        return option ? int(option->palette.color(QPalette::Midlight).rgb()) : 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

QIcon ToolvaneStyle::standardIcon(StandardPixmap standard, const QStyleOption *option,
                                  const QWidget *widget) const
{
    for (const auto &[known, name] : ownIcons)
        if (known == standard)
            return namedImage(name.toString());
    return QProxyStyle::standardIcon(standard, option, widget);
}

// A message box has a short sentence and a longer one below it; Fusion sets both alike and wraps
// the second to the width of the first.
void ToolvaneStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (widget->objectName() != u"qt_msgbox_informativelabel")
        return;
    widget->setMinimumWidth(widget->fontMetrics().averageCharWidth() * messageColumns);
    if (auto *headline = widget->parentWidget()->findChild<QLabel *>(u"qt_msgbox_label"_s))
        headline->setFont(demiBold(headline->font()));
}
