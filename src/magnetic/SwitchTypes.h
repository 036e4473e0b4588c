#pragma once

#include <QColor>
#include <QtGlobal>
#include <array>

// The switch types a key can be told it carries (magnetism table FC): the keyboard knows them by
// id, the page shows each in a colour of its own. The names are translated in the FrameMagic
// context.
namespace SwitchTypes {

struct Type
{
    quint8 id;
    QRgb colour;
    const char* name;
};

// clang-format off
inline constexpr std::array<Type, 16> kTypes{{
    {.id = 0, .colour = 0xFF9B9B9B, .name = QT_TRANSLATE_NOOP("FrameMagic", "高特")},
    {.id = 1, .colour = 0xFF7969F3, .name = QT_TRANSLATE_NOOP("FrameMagic", "磁玉")},
    {.id = 2, .colour = 0xFFF369A7, .name = QT_TRANSLATE_NOOP("FrameMagic", "磁玉pro")},
    {.id = 3, .colour = 0xFFC7D827, .name = QT_TRANSLATE_NOOP("FrameMagic", "磁玉gaming")},
    {.id = 4, .colour = 0xFFFF8E32, .name = QT_TRANSLATE_NOOP("FrameMagic", "天王")},
    {.id = 5, .colour = 0xFFFF6BF3, .name = QT_TRANSLATE_NOOP("FrameMagic", "万磁王")},
    {.id = 7, .colour = 0xFF6B9CFF, .name = QT_TRANSLATE_NOOP("FrameMagic", "机械轴")},
    {.id = 15, .colour = 0xFF2E2EB9, .name = QT_TRANSLATE_NOOP("FrameMagic", "凯华轴")},
    {.id = 24, .colour = 0xFF6969F3, .name = QT_TRANSLATE_NOOP("FrameMagic", "星引力")},
    {.id = 25, .colour = 0xFF2FC1FF, .name = QT_TRANSLATE_NOOP("FrameMagic", "炫光")},
    {.id = 31, .colour = 0xFF870339, .name = QT_TRANSLATE_NOOP("FrameMagic", "闪电")},
    {.id = 63, .colour = 0xFF206599, .name = QT_TRANSLATE_NOOP("FrameMagic", "星耀")},
    //: 冠泰轴
    {.id = 71, .colour = 0xFFFF6D6B, .name = QT_TRANSLATE_NOOP("FrameMagic", "矮磁轴")},
    {.id = 72, .colour = 0xFF363636, .name = QT_TRANSLATE_NOOP("FrameMagic", "星芒磁轴")},
    {.id = 95, .colour = 0xFF2258A9, .name = QT_TRANSLATE_NOOP("FrameMagic", "白泽轴")},
    {.id = 118, .colour = 0xFF149819, .name = QT_TRANSLATE_NOOP("FrameMagic", "自定义")},
}};
// clang-format on

// The eight the page offers, by button. Deliberate: the third button's label names a different
// row from the id it writes (95), and the seventh shows the icon of row 6; both stay so.
struct Button
{
    quint8 id;
    const char* icon;
    const char* label;
};

inline constexpr std::array<Button, 8> kButtons{{
    {25, ":/images/rt/mtico09.png", QT_TRANSLATE_NOOP("FrameMagic", "炫光")},
    {31, ":/images/rt/mtico10.png", QT_TRANSLATE_NOOP("FrameMagic", "闪电")},
    {95, ":/images/rt/mtico14.png", QT_TRANSLATE_NOOP("FrameMagic", "星芒磁轴")},
    {1, ":/images/rt/mtico01.png", QT_TRANSLATE_NOOP("FrameMagic", "磁玉")},
    {2, ":/images/rt/mtico02.png", QT_TRANSLATE_NOOP("FrameMagic", "磁玉Pro")},
    {3, ":/images/rt/mtico03.png", QT_TRANSLATE_NOOP("FrameMagic", "磁玉Gaming")},
    {4, ":/images/rt/mtico06.png", QT_TRANSLATE_NOOP("FrameMagic", "天王")},
    {5, ":/images/rt/mtico05.png", QT_TRANSLATE_NOOP("FrameMagic", "万磁王")},
}};

// The row of an id; row 0 for an id the table doesn't hold (the keyboard keeps the id).
constexpr int rowOf(quint8 id)
{
    for (int row = 0; row < int(kTypes.size()); ++row)
        if (kTypes[row].id == id) return row;
    return 0;
}

inline QColor colourOf(quint8 id)
{
    return QColor::fromRgb(kTypes[rowOf(id)].colour);
}

} // namespace SwitchTypes
