#include "ModuleGenKeymapping.h"

#include "KeyNameTable.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr char kContext[] = "ModuleGenKeymapping";

// Row numbers matter: the pickers address rows by number. Names repeat on purpose (the two
// "停止" rows, the two side-light colour groups); they are not keys.
constexpr KeyFunctionRow kFunctionRows[] = {
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "上一曲"),
     .entry = {0x03, 0x00, 0xB6, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "下一曲"),
     .entry = {0x03, 0x00, 0xB5, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "播放/暂停"),
     .entry = {0x03, 0x00, 0xCD, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "停止"),
     .entry = {0x03, 0x00, 0xB7, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "静音"),
     .entry = {0x03, 0x00, 0xE2, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "音量+"),
     .entry = {0x03, 0x00, 0xE9, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "音量-"),
     .entry = {0x03, 0x00, 0xEA, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "播放器"),
     .entry = {0x03, 0x00, 0x83, 0x01}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "计算器"),
     .entry = {0x03, 0x00, 0x92, 0x01}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "邮件"),
     .entry = {0x03, 0x00, 0x8A, 0x01}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "我的电脑"),
     .entry = {0x03, 0x00, 0x94, 0x01}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "搜索"),
     .entry = {0x03, 0x00, 0x21, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "主页"),
     .entry = {0x03, 0x00, 0x23, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "后退"),
     .entry = {0x03, 0x00, 0x24, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "前进"),
     .entry = {0x03, 0x00, 0x25, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "停止"),
     .entry = {0x03, 0x00, 0x26, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "刷新"),
     .entry = {0x03, 0x00, 0x27, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "收藏"),
     .entry = {0x03, 0x00, 0x2A, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "亮度+"),
     .entry = {0x03, 0x00, 0x6F, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "亮度-"),
     .entry = {0x03, 0x00, 0x70, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "放大"),
     .entry = {0x00, 0x00, 0xE3, 0x2E}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "缩小"),
     .entry = {0x00, 0x00, 0xE3, 0x2D}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "呼出Siri"),
     .entry = {0x12, 0x00, 0xE3, 0x2C}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "切换输入法"),
     .entry = {0x00, 0xE0, 0x2C, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "返回"),
     .entry = {0x03, 0x00, 0x24, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Fn键锁屏"),
     .entry = {0x0A, 0x0D, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "锁屏"),
     .entry = {0x00, 0x00, 0xE3, 0x0F}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "R-Fn键"),
     .entry = {0x0A, 0x01, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "DPI-Loop"),
     .entry = {0x14, 0x00, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "DPI+"),
     .entry = {0x14, 0x00, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "DPI-"),
     .entry = {0x14, 0x00, 0x02, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "DPI-Shift"),
     .entry = {0x14, 0x00, 0x04, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "电源"),
     .entry = {0x02, 0x81, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "睡眠"),
     .entry = {0x02, 0x82, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "唤醒"),
     .entry = {0x02, 0x83, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-Value"),
     .entry = {0x08, 0x00, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile+"),
     .entry = {0x08, 0x00, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-"),
     .entry = {0x08, 0x00, 0x02, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-Loop"),
     .entry = {0x08, 0x00, 0x03, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-1"),
     .entry = {0x08, 0x00, 0x04, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-2"),
     .entry = {0x08, 0x00, 0x04, 0x01}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-3"),
     .entry = {0x08, 0x00, 0x04, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-4"),
     .entry = {0x08, 0x00, 0x04, 0x03}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-5"),
     .entry = {0x08, 0x00, 0x04, 0x04}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "L-Fn键"),
     .entry = {0x0A, 0x01, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "恢复出厂设置"),
     .entry = {0x0A, 0x02, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "锁Win"),
     .entry = {0x0A, 0x03, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "切换Win"),
     .entry = {0x0A, 0x05, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "切换Mac"),
     .entry = {0x0A, 0x05, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "系统切换"),
     .entry = {0x0A, 0x05, 0x03, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Check Battery"),
     .entry = {0x0A, 0x08, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "WASD切换"),
     .entry = {0x0A, 0x0A, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Fn层切换"),
     .entry = {0x0A, 0x0B, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "设备节能"),
     .entry = {0x0A, 0x0C, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "APP CTRL切换"),
     .entry = {0x0A, 0x17, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光开/关"),
     .entry = {0x0D, 0x00, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光灯效循环"),
     .entry = {0x0D, 0x01, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光灯效+"),
     .entry = {0x0D, 0x01, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光灯效-"),
     .entry = {0x0D, 0x01, 0x02, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光亮度循环"),
     .entry = {0x0D, 0x02, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光亮度+"),
     .entry = {0x0D, 0x02, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光亮度-"),
     .entry = {0x0D, 0x02, 0x02, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光速度循环"),
     .entry = {0x0D, 0x03, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光速度-"),
     .entry = {0x0D, 0x03, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光速度+"),
     .entry = {0x0D, 0x03, 0x02, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光方向循环"),
     .entry = {0x0D, 0x05, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光向左"),
     .entry = {0x0D, 0x05, 0x00, 0x01}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光向右"),
     .entry = {0x0D, 0x05, 0x00, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光颜色循环"),
     .entry = {0x0D, 0x05, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光颜色+"),
     .entry = {0x0D, 0x05, 0x01, 0x01}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光颜色-"),
     .entry = {0x0D, 0x05, 0x01, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic 0"),
     .entry = {0x0D, 0x06, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic 1"),
     .entry = {0x0D, 0x06, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic 2"),
     .entry = {0x0D, 0x06, 0x02, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic 3"),
     .entry = {0x0D, 0x06, 0x03, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic 4"),
     .entry = {0x0D, 0x06, 0x04, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic"),
     .entry = {0x0D, 0x06, 0x80, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光开/关"),
     .entry = {0x0D, 0x08, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光亮度循环"),
     .entry = {0x0D, 0x08, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光速度循环"),
     .entry = {0x0D, 0x08, 0x02, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光速度+"),
     .entry = {0x0D, 0x08, 0x02, 0x01}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光速度-"),
     .entry = {0x0D, 0x08, 0x02, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色循环"),
     .entry = {0x0D, 0x08, 0x03, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色+"),
     .entry = {0x0D, 0x08, 0x03, 0x01}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色-"),
     .entry = {0x0D, 0x08, 0x03, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色循环"),
     .entry = {0x0D, 0x08, 0x04, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色+"),
     .entry = {0x0D, 0x08, 0x04, 0x01}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色-"),
     .entry = {0x0D, 0x08, 0x04, 0x02}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "2.4G"),
     .entry = {0x0E, 0x00, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "蓝牙1"),
     .entry = {0x0E, 0x00, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "蓝牙2"),
     .entry = {0x0E, 0x00, 0x02, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "蓝牙3"),
     .entry = {0x0E, 0x00, 0x03, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "有线"),
     .entry = {0x0E, 0x00, 0x04, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "有线-蓝牙-2.4G"),
     .entry = {0x0E, 0x00, 0x05, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "2.4G配对"),
     .entry = {0x0E, 0x01, 0x00, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "蓝牙配对"),
     .entry = {0x0E, 0x01, 0x01, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Insert键"),
     .entry = {0x00, 0x00, 0x49, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Print Screen键"),
     .entry = {0x00, 0x00, 0x46, 0x00}},
};
static_assert(std::size(kFunctionRows) == 98);

constexpr KeyFunctionRow kMouseRows[] = {
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "左键单击"),
     .entry = {0x01, 0x00, 0xF0, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "右键单击"),
     .entry = {0x01, 0x00, 0xF1, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "中键按下"),
     .entry = {0x01, 0x00, 0xF2, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "光标前进"),
     .entry = {0x01, 0x00, 0xF3, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "光标后退"),
     .entry = {0x01, 0x00, 0xF4, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "滚轮-向左"),
     .entry = {0x01, 0x00, 0xF5, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "滚轮-向右"),
     .entry = {0x01, 0x00, 0xF6, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "滚轮-向上"),
     .entry = {0x01, 0x00, 0xF7, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "滚轮-向下"),
     .entry = {0x01, 0x00, 0xF8, 0x00}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "向上滚屏"),
     .entry = {0x01, 0x00, 0xF5, 0x01}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "向下滚屏"),
     .entry = {0x01, 0x00, 0xF5, 0xFF}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "XUP"),
     .entry = {0x01, 0x00, 0xF6, 0xFB}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "XDOWN"),
     .entry = {0x01, 0x00, 0xF6, 0x05}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "YUP"),
     .entry = {0x01, 0x00, 0xF7, 0xFB}},
    {.sourceName = QT_TRANSLATE_NOOP("ModuleGenKeymapping", "YDOWN"),
     .entry = {0x01, 0x00, 0xF7, 0x05}},
};
static_assert(std::size(kMouseRows) == 15);

constexpr quint8 kKindMacro = 0x09;

std::optional<KeyFunctionRow> rowAt(const QList<KeyFunctionRow>& list, quint8 row)
{
    if (row >= list.size()) return std::nullopt;
    return list.at(row);
}

const KeyFunctionRow* findEntry(const QList<KeyFunctionRow>& list, const KeyEntry& entry)
{
    const auto it = std::find_if(list.cbegin(), list.cend(), [&entry](const KeyFunctionRow& row) {
        return row.entry == entry;
    });
    return it == list.cend() ? nullptr : &*it;
}

} // namespace

QString KeyFunctionRow::name() const
{
    return QCoreApplication::translate(kContext, sourceName);
}

ModuleGenKeymapping::ModuleGenKeymapping()
    : functionKeyList(std::begin(kFunctionRows), std::end(kFunctionRows)),
      mouseKeyList(std::begin(kMouseRows), std::end(kMouseRows))
{
}

std::optional<KeyFunctionRow> ModuleGenKeymapping::FunctionEntryAt(quint8 row) const
{
    return rowAt(functionKeyList, row);
}

std::optional<KeyFunctionRow> ModuleGenKeymapping::MouseEntryAt(quint8 row) const
{
    return rowAt(mouseKeyList, row);
}

QString ModuleGenKeymapping::KeyEntryText(const KeyEntry& entry, bool prefix) const
{
    if (entry.isEmpty()) return QString();
    if (entry.kind() == kKindMacro) return tr("宏设置");
    if (const KeyFunctionRow* row = findEntry(functionKeyList, entry))
        return tr("功能") + QStringLiteral(": ") + row->name();
    if (const KeyFunctionRow* row = findEntry(mouseKeyList, entry))
        return tr("鼠标") + QStringLiteral(": ") + row->name();

    // Anything else reads as a combination of bytes 1 to 3, whatever its kind: deliberate, so
    // an entry no list holds still shows something. Without a first key it shows nothing.
    const QString first = KeyNameByCode(entry[1]);
    if (first.isEmpty()) return QString();
    QString text = prefix ? tr("组合") + QStringLiteral(": ") : QString();
    text += first;
    for (int i = 2; i < KeyEntry::kSize; ++i) {
        const QString name = KeyNameByCode(entry[i]);
        if (!name.isEmpty()) text += QStringLiteral(" + ") + name;
    }
    return text;
}
