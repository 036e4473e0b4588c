#pragma once

#include <QStringList>
#include <QtGlobal>
#include <array>

// The keyboard's light effects as the effect list shows them, top to bottom (not in the order
// of their ids), and the choices each effect offers. Names and choices are translated in the
// context "ModuleEfMode".
namespace EffectCatalogue {

struct Effect
{
    const char* name;
    quint8 id;
};

inline constexpr quint8 kUserPicture = 13; // its five choices are the five picture layers
inline constexpr quint8 kMusic = 22;       // driven by what the computer plays

inline constexpr std::array<Effect, 23> kEffects{{
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "常亮"), .id = 1},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "呼吸"), .id = 2},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "流星"), .id = 18},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "涟漪"), .id = 5},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "极光"), .id = 23},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "雨滴"), .id = 17},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "聚合"), .id = 9},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "川流不息"), .id = 7},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "霓虹"), .id = 3},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "光波"), .id = 4},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "繁星点点"), .id = 6},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "如影随形"), .id = 8},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "正弦波"), .id = 10},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "彩泉涌动"), .id = 11},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "百花争艳"), .id = 12},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "一石二鸟"), .id = 14},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "峰回路转"), .id = 15},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "斜风细雨"), .id = 16},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "踏雪无痕"), .id = 19},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "层出不穷"), .id = 24},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "光影"), .id = 21},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "音乐律动"), .id = 22},
    {.name = QT_TRANSLATE_NOOP("ModuleEfMode", "自定义"), .id = 13},
}};

struct EffectOptions
{
    quint8 id;
    std::array<const char*, 5> choices; // unused ones are null
};

inline constexpr std::array<EffectOptions, 6> kOptions{{
    {.id = 4,
     .choices = {QT_TRANSLATE_NOOP("ModuleEfMode", "左"), QT_TRANSLATE_NOOP("ModuleEfMode", "右"),
                 QT_TRANSLATE_NOOP("ModuleEfMode", "上"), QT_TRANSLATE_NOOP("ModuleEfMode", "下")}},
    {.id = 7,
     .choices = {QT_TRANSLATE_NOOP("ModuleEfMode", "Z形"),
                 QT_TRANSLATE_NOOP("ModuleEfMode", "回形")}},
    {.id = 11,
     .choices = {QT_TRANSLATE_NOOP("ModuleEfMode", "向内"),
                 QT_TRANSLATE_NOOP("ModuleEfMode", "向外")}},
    {.id = 12,
     .choices = {QT_TRANSLATE_NOOP("ModuleEfMode", "向右"),
                 QT_TRANSLATE_NOOP("ModuleEfMode", "向左")}},
    {.id = kUserPicture,
     .choices = {QT_TRANSLATE_NOOP("ModuleEfMode", "图案1"),
                 QT_TRANSLATE_NOOP("ModuleEfMode", "图案2"),
                 QT_TRANSLATE_NOOP("ModuleEfMode", "图案3"),
                 QT_TRANSLATE_NOOP("ModuleEfMode", "图案4"),
                 QT_TRANSLATE_NOOP("ModuleEfMode", "图案5")}},
    {.id = 15,
     .choices = {QT_TRANSLATE_NOOP("ModuleEfMode", "顺时针"),
                 QT_TRANSLATE_NOOP("ModuleEfMode", "逆时针")}},
}};

// What an effect without choices shows, in a disabled box.
inline constexpr const char* kNoChoice = QT_TRANSLATE_NOOP("ModuleEfMode", "无");

// The effect's choices, translated; empty when it has none.
QStringList choices(quint8 id);
// The row of an effect in kEffects, -1 for an id the list doesn't have.
int rowOf(quint8 id);

} // namespace EffectCatalogue
