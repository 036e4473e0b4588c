#include "ModuleDeviceOptions.h"

#include "CustumSlider.h"
#include "DialogDeviceConnect.h"
#include "ModuleScrollValue.h"
#include "NumberText.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

// The report rates in wheel order; the index is the code on the wire.
constexpr std::array<const char*, 7> kReportRates{"8000 hz", "4000 hz", "2000 hz", "1000 hz",
                                                  "500 hz",  "250 hz",  "125 hz"};

struct WheelEntry
{
    const char* frame;
    const char* title;
};
constexpr std::array<WheelEntry, 3> kWheels{{
    {"frameSV1", QT_TRANSLATE_NOOP("ModuleDeviceOptions", "键盘回报率")},
    {"frameSV2", QT_TRANSLATE_NOOP("ModuleDeviceOptions", "2.4G关闭背光")},
    {"frameSV3", QT_TRANSLATE_NOOP("ModuleDeviceOptions", "蓝牙关闭背光")},
}};
constexpr int kRateWheel = 0;
constexpr std::array<int, 3> kWheelSleepSlot{-1, 1, 0};

struct RowEntry
{
    const char* edit;
    const char* slider;
    const char* title;
    const char* unit;
    int maximum;
    int singleStep;
    int pageStep;
    int sleepSlot; // -1: debounce
};
constexpr std::array<RowEntry, 3> kRows{{
    {"lineEditV1", "horizontalSlider24Deep",
     QT_TRANSLATE_NOOP("ModuleDeviceOptions", "2.4G深度睡眠时间"), "min", 1080, 10, 100, 3},
    {"lineEditV2", "horizontalSliderBTDeep",
     QT_TRANSLATE_NOOP("ModuleDeviceOptions", "蓝牙深度睡眠时间"), "min", 1080, 10, 100, 2},
    {"lineEditV3", "horizontalSliderDebounce",
     QT_TRANSLATE_NOOP("ModuleDeviceOptions", "按键防抖等级设置"), "", 10, 1, 20, -1},
}};

constexpr int kSecondsPerMinute = 60;

const char* const kStyle = R"(
QLabel[role="title"] { color: #1A1A1A; font-size: 14px; font-weight: 600; }
QLabel[role="unit"] { color: #8A8A8A; font-size: 13px; }
QFrame[role="card"] { background-color: #F8F6FB; border-radius: 16px; }
QSlider::groove:horizontal { height: 6px; border-radius: 3px; background: #E6E1EE; }
QSlider::sub-page:horizontal { border-radius: 3px; background: #6329B6; }
QSlider::handle:horizontal { width: 18px; height: 18px; margin: -6px 0px; border-radius: 9px;
    background: #FFFFFF; border: 2px solid #6329B6; }
QLineEdit { max-width: 64px; min-width: 64px; qproperty-alignment: AlignCenter; }
)";

} // namespace

ModuleDeviceOptions::ModuleDeviceOptions(DialogDeviceConnect* connection,
                                         std::function<bool()> held, QWidget* parent)
    : QFrame(parent), device(connection), writesHeld(std::move(held))
{
    setObjectName(QStringLiteral("ModuleDeviceOptions"));
    setStyleSheet(QLatin1String(kStyle));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(24, 18, 24, 18);
    layout->setSpacing(18);
    for (int i = 0; i < int(kWheels.size()); ++i)
        layout->addWidget(buildWheel(i, wheels[i]));
    layout->addSpacing(12);
    auto* rowBox = new QVBoxLayout();
    rowBox->setSpacing(12);
    rowBox->addStretch(1);
    for (int i = 0; i < int(kRows.size()); ++i)
        rowBox->addWidget(buildRow(i));
    rowBox->addStretch(1);
    layout->addLayout(rowBox, 1);
    retranslate();

    // Connected after the lists are in: setValues() signals its first index.
    connect(wheels[kRateWheel], &ModuleScrollValue::onIndexChanged, this, [this](int index) {
        if (device) device->DoSetReportRate(quint8(index));
    });
    for (int i = 0; i < int(kWheels.size()); ++i) {
        const int slot = kWheelSleepSlot[i];
        if (slot < 0) continue;
        connect(wheels[i], &ModuleScrollValue::onIndexChanged, this, [this, slot](int index) {
            if (device && index >= 0 && index < int(SleepMinutes.size()))
                device->DoSetSleepTime(SleepMinutes[index], slot);
        });
    }
}

QWidget* ModuleDeviceOptions::buildWheel(int index, ModuleScrollValue*& wheel)
{
    auto* box = new QFrame(this);
    box->setProperty("role", "card");
    box->setFixedWidth(176);
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(8);
    auto* title = new QLabel(box);
    title->setObjectName(QStringLiteral("labelSVTitle%1").arg(index + 1));
    title->setProperty("role", "title");
    title->setAlignment(Qt::AlignCenter);
    title->setWordWrap(true);
    title->setFixedHeight(40);
    wheel = new ModuleScrollValue(box);
    wheel->setObjectName(QLatin1String(kWheels[index].frame));
    wheel->setFixedSize(128, 190);
    QStringList values;
    if (index == kRateWheel) {
        for (const char* rate : kReportRates)
            values << QLatin1String(rate);
    } else {
        for (int minutes : SleepMinutes)
            values << QStringLiteral("%1 min").arg(minutes);
    }
    wheel->setValues(values);
    layout->addWidget(title);
    layout->addWidget(wheel, 0, Qt::AlignHCenter);
    return box;
}

QWidget* ModuleDeviceOptions::buildRow(int index)
{
    const RowEntry& entry = kRows[index];
    auto* box = new QFrame(this);
    box->setProperty("role", "card");
    auto* layout = new QGridLayout(box);
    layout->setContentsMargins(18, 10, 18, 12);
    layout->setHorizontalSpacing(14);
    layout->setVerticalSpacing(6);
    auto* title = new QLabel(box);
    title->setObjectName(QStringLiteral("labelRowTitle%1").arg(index + 1));
    title->setProperty("role", "title");
    auto* slider = new CustumSlider(box);
    slider->setObjectName(QLatin1String(entry.slider));
    slider->setOrientation(Qt::Horizontal);
    slider->setRange(0, entry.maximum);
    slider->setSingleStep(entry.singleStep);
    slider->setPageStep(entry.pageStep);
    slider->setCursor(Qt::PointingHandCursor);
    auto* edit = new QLineEdit(box);
    edit->setObjectName(QLatin1String(entry.edit));
    edit->installEventFilter(this);
    auto* unit = new QLabel(QLatin1String(entry.unit), box);
    unit->setProperty("role", "unit");
    unit->setFixedWidth(28);
    layout->addWidget(title, 0, 0, 1, 3);
    layout->addWidget(slider, 1, 0);
    layout->addWidget(edit, 1, 1);
    layout->addWidget(unit, 1, 2);
    layout->setColumnStretch(0, 1);

    Row& row = rows[index];
    row.edit = edit;
    row.slider = slider;
    if (entry.sleepSlot >= 0) {
        const int slot = entry.sleepSlot;
        row.write = [this, slot](int value) { device->DoSetSleepTime(value, slot); };
    } else {
        row.write = [this](int value) { device->DoSetDebounce(quint8(value)); };
    }
    connect(slider, &QSlider::valueChanged, edit,
            [edit](int value) { edit->setText(QStringLiteral("%1").arg(value)); });
    connect(edit, &QLineEdit::textChanged, this,
            [this, index](const QString& text) { onText(rows[index], text); });
    return box;
}

void ModuleDeviceOptions::onText(const Row& row, const QString& text)
{
    const bool typed = !NumberText::leadingNumber(text.trimmed()).isEmpty();
    const int value = int(NumberText::toDouble(text.trimmed()));
    // The slider only shows the value: it holds its own limit, the text is what gets written.
    {
        const QSignalBlocker quiet(row.slider);
        row.slider->setValue(value);
    }
    // An emptied field is one being retyped; it writes nothing.
    if (!typed || !device || (writesHeld && writesHeld())) return;
    row.write(value);
}

void ModuleDeviceOptions::fill()
{
    if (!device) return;
    const std::array<quint16, 4>& sleep = device->GetSleepTimes();
    wheels[0]->setIndex(device->GetReportRate());
    // Deliberate: the minute count itself is the wheel's index (taken modulo the list), not
    // looked up among the wheel's minutes; 5 minutes stands on "45 min".
    wheels[1]->setIndex(sleep[1] / kSecondsPerMinute);
    wheels[2]->setIndex(sleep[0] / kSecondsPerMinute);
    rows[0].edit->setText(QStringLiteral("%1").arg(sleep[3] / kSecondsPerMinute));
    rows[1].edit->setText(QStringLiteral("%1").arg(sleep[2] / kSecondsPerMinute));
    rows[2].edit->setText(QStringLiteral("%1").arg(device->GetDebounce()));
}

bool ModuleDeviceOptions::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        for (const Row& row : rows) {
            if (watched != row.edit) continue;
            // Nothing clamps this: the written value is what the text says.
            const int step = static_cast<QWheelEvent*>(event)->angleDelta().y() >= 1 ? 1 : -1;
            row.edit->setText(QStringLiteral("%1").arg(
                int(NumberText::toDouble(row.edit->text().trimmed())) + step));
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void ModuleDeviceOptions::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}

void ModuleDeviceOptions::retranslate()
{
    for (int i = 0; i < int(kWheels.size()); ++i)
        if (auto* label = findChild<QLabel*>(QStringLiteral("labelSVTitle%1").arg(i + 1)))
            label->setText(tr(kWheels[i].title));
    for (int i = 0; i < int(kRows.size()); ++i)
        if (auto* label = findChild<QLabel*>(QStringLiteral("labelRowTitle%1").arg(i + 1)))
            label->setText(tr(kRows[i].title));
}
