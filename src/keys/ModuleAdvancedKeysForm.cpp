// The advanced keys' four tabs as widgets, and their texts.

#include "CustumSlider.h"
#include "ModuleAdvancedKeys.h"
#include "ModuleDKSAdjust.h"
#include "ModuleDKSItem.h"
#include "NewTabWidget.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

namespace {

struct TabEntry
{
    const char* name;
    const char* title;
};
constexpr std::array<TabEntry, 4> kTabs{{
    {"tab21", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "动态键程(DKS)")},
    {"tab22", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "按住/单击(MT)")},
    {"tab23", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "切换开关(TGL)")},
    {"tab24", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "SnapKey")},
}};

// Texts that stay as built, by the object name of the label or button that shows them.
struct FixedText
{
    const char* name;
    const char* text;
};
constexpr std::array<FixedText, 20> kFixedTexts{{
    {"pushButton_OKDKS", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "确定")},
    {"pushButton_OKMT", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "确定")},
    {"pushButton_OKTGL", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "确定")},
    {"pushButton_OKSnap", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "确定")},
    {"labelKeyCaptionDKS", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "当前按键")},
    {"labelKeyCaptionMT", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "当前按键")},
    {"labelKeyCaptionTGL", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "当前按键")},
    {"labelFunctionsDKS", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "按键功能")},
    {"labelFunctionTGL", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "按键功能")},
    {"labelTipDKS",
     QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "一个按键在行程的四个位置各触发一个功能。点击上方"
                                             "键盘选择按键，点击行程数值调整触发点。")},
    {"labelTapCaption", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "单击时")},
    {"labelHoldCaption", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "按住时")},
    {"labelTip", QT_TRANSLATE_NOOP("ModuleAdvancedKeys",
                                   "选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能"
                                   "（支持组合键）")},
    {"labelTimeFlag", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "调整触发“按住\"键所需的时间")},
    {"label_6", QT_TRANSLATE_NOOP("ModuleAdvancedKeys",
                                  "选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能")},
    {"radioButton_TGL1", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "连点")},
    {"radioButton_TGL2", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "长按")},
    {"label_4", QT_TRANSLATE_NOOP("ModuleAdvancedKeys",
                                  "绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后"
                                  "按下的按键为准")},
    {"radioButton_Snap1", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "选择A键")},
    {"radioButton_Snap2", QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "选择B键")},
}};

// What a key or function button shows while it has nothing to show.
const char* const kNoKey = QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "未选择");
const char* const kNoFunction = QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "未设置功能");
const char* const kTap = QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "单击");
const char* const kHold = QT_TRANSLATE_NOOP("ModuleAdvancedKeys", "按住");
const char* const kCaptionProperty = "caption";

// The header of the DKS rows: a picture and a travel over each switch column.
struct TravelColumn
{
    const char* text;
    const char* picture;
    const char* textName;
    const char* pictureName;
    bool opensPopup; // the press point and the peak; the bottom's 3.2 mm are fixed
};
constexpr std::array<TravelColumn, 4> kTravelColumns{{
    {"0.7 mm", ":/images/k/ic_press.png", "labelPress1", "labelPress3", true},
    {"3.2 mm", ":/images/k/ic_bottom.png", "labelPress2", "labelPress4", false},
    {"3.2 mm", ":/images/k/ic_lift.png", "labelRelease1", "labelRelease3", false},
    {"0.7 mm", ":/images/k/ic_peak.png", "labelRelease2", "labelRelease4", true},
}};
constexpr int kPictureSize = 32;
constexpr int kTravelTextWidth = 70;
constexpr int kHeaderHeight = 56;

constexpr QSize kKeySize{120, 44};
constexpr QSize kSaveSize{120, 36};
constexpr QSize kFunctionSize{120, 40}; // the MT buttons, as given
constexpr QSize kWideFunctionSize{168, 40};
constexpr int kTipWidth = 250;

const char* const kStyle = R"(
QTabWidget::pane { border: none; }
QLabel[role="caption"] { color: #6B6B6B; font-size: 12px; }
QPushButton[role="keycap"] { background-color: #FFFFFF; color: #6329B6;
    border: 2px solid #D8BDFF; border-radius: 12px; font-size: 15px; font-weight: 700;
    padding: 0px 6px; }
QPushButton[role="save"] { background-color: #6329B6; color: #FFFFFF; border: none;
    border-radius: 16px; font-size: 14px; padding: 0px; }
QPushButton[role="save"]:hover { background-color: #7A42CC; }
QPushButton[role="function"] { background-color: #FFFFFF; color: #333333;
    border: 1px solid #E2E2E2; border-radius: 12px; font-size: 13px; padding: 0px 8px; }
QPushButton[role="function"]:hover { border-color: #6329B6; color: #6329B6; }
QFrame[role="tip"] { background-color: #FFFFFF; border-radius: 16px; }
QLabel[role="tipText"] { color: #6B6B6B; font-size: 13px; }
QLabel[role="travel"] { color: #6329B6; font-size: 12px; font-weight: 600;
    text-decoration: underline; }
QLabel[role="travelFixed"], QLabel[role="flag"] { color: #8A8A8A; font-size: 12px; }
QLabel[role="section"] { color: #1A1A1A; font-size: 13px; font-weight: 600; }
QLabel#labelSwap { color: #6329B6; font-size: 22px; }
QRadioButton { color: #333333; font-size: 13px; spacing: 8px; }
QRadioButton::indicator { width: 14px; height: 14px; border-radius: 9px;
    border: 2px solid #C9C9D1; background: #FFFFFF; }
QRadioButton::indicator:checked { width: 8px; height: 8px; border: 5px solid #6329B6; }
QSlider::groove:horizontal { height: 6px; border-radius: 3px; background: #E6E1EE; }
QSlider::sub-page:horizontal { border-radius: 3px; background: #6329B6; }
QSlider::handle:horizontal { width: 18px; height: 18px; margin: -6px 0px; border-radius: 9px;
    background: #FFFFFF; border: 2px solid #6329B6; }
QLineEdit#lineEditValue { background-color: #FFFFFF; border: 1px solid #E2E2E2;
    border-radius: 8px; color: #1A1A1A; font-size: 13px; min-width: 72px; max-width: 72px;
    min-height: 26px; qproperty-alignment: AlignCenter; }
)";

QPixmap picture(const char* path)
{
    QPixmap pixmap(QString::fromLatin1(path));
    pixmap.setDevicePixelRatio(2); // drawn at twice the size shown
    return pixmap;
}

} // namespace

void ModuleAdvancedKeys::buildForm()
{
    setObjectName(QStringLiteral("page2"));
    setStyleSheet(QLatin1String(kStyle));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 12, 20, 16);
    tabWidgetAdv = new NewTabWidget(this);
    tabWidgetAdv->setObjectName(QStringLiteral("tabWidgetAdv"));
    tabWidgetAdv->addTab(buildDksTab(), QString());
    tabWidgetAdv->addTab(buildMtTab(), QString());
    tabWidgetAdv->addTab(buildTglTab(), QString());
    tabWidgetAdv->addTab(buildSnapTab(), QString());
    for (int i = 0; i < int(kTabs.size()); ++i)
        tabWidgetAdv->widget(i)->setObjectName(QLatin1String(kTabs[i].name));
    layout->addWidget(tabWidgetAdv);
}

QPushButton* ModuleAdvancedKeys::newButton(QWidget* owner, const QString& name, const char* role)
{
    auto* button = new QPushButton(owner);
    button->setObjectName(name);
    button->setProperty("role", QLatin1String(role));
    button->setCursor(Qt::PointingHandCursor);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QLabel* ModuleAdvancedKeys::newLabel(QWidget* owner, const QString& name, const char* role)
{
    auto* label = new QLabel(owner);
    label->setObjectName(name);
    label->setProperty("role", QLatin1String(role));
    return label;
}

QVBoxLayout* ModuleAdvancedKeys::keyColumn(QWidget* caption, QPushButton* key, QPushButton* save)
{
    // The key under edit only shows; it takes no clicks of its own.
    key->setFixedSize(kKeySize);
    key->setCursor(Qt::ArrowCursor);
    save->setFixedSize(kSaveSize);
    auto* column = new QVBoxLayout();
    column->setSpacing(8);
    column->addWidget(caption);
    column->addWidget(key);
    column->addStretch(1);
    column->addWidget(save);
    return column;
}

QWidget* ModuleAdvancedKeys::tipCard(QWidget* owner, QLabel* text)
{
    auto* card = new QFrame(owner);
    card->setProperty("role", "tip");
    card->setFixedWidth(kTipWidth);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(18, 14, 18, 14);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    layout->addWidget(text);
    card->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Maximum);
    return card;
}

QHBoxLayout* ModuleAdvancedKeys::tabLayout(QWidget* tab)
{
    auto* layout = new QHBoxLayout(tab);
    layout->setContentsMargins(8, 14, 8, 4);
    layout->setSpacing(28);
    return layout;
}

QHBoxLayout* ModuleAdvancedKeys::keyedTab(QWidget* tab, const QString& suffix, QPushButton*& key,
                                          QPushButton*& save)
{
    QHBoxLayout* layout = tabLayout(tab);
    key = newButton(tab, QStringLiteral("pushButton_") + suffix, "keycap");
    save = newButton(tab, QStringLiteral("pushButton_OK") + suffix, "save");
    layout->addLayout(
        keyColumn(newLabel(tab, QStringLiteral("labelKeyCaption") + suffix, "caption"), key, save));
    return layout;
}

QWidget* ModuleAdvancedKeys::buildDksTab()
{
    auto* tab = new QWidget();
    QHBoxLayout* layout = keyedTab(tab, QStringLiteral("DKS"), pushButton_DKS, pushButton_OKDKS);

    auto* editor = new QVBoxLayout();
    editor->setSpacing(0);
    // The header lines each picture and travel up over its switch column.
    auto* header = new QWidget(tab);
    header->setFixedSize(ModuleDKSItem::kWidth + kTravelTextWidth / 2, kHeaderHeight);
    QLabel* functions = newLabel(header, "labelFunctionsDKS", "section");
    functions->setGeometry(8, kHeaderHeight - 24, 112, 20);
    for (int i = 0; i < int(kTravelColumns.size()); ++i) {
        const TravelColumn& column = kTravelColumns[i];
        const int centre = ModuleDKSItem::kSwitchX[i] + ModuleDKSItem::kSwitchSize / 2;
        QLabel* image = newLabel(header, column.pictureName, "picture");
        image->setPixmap(picture(column.picture));
        image->setGeometry(centre - kPictureSize / 2, 0, kPictureSize, kPictureSize);
        QLabel* text =
            newLabel(header, column.textName, column.opensPopup ? "travel" : "travelFixed");
        text->setText(QLatin1String(column.text));
        text->setAlignment(Qt::AlignCenter);
        text->setGeometry(centre - kTravelTextWidth / 2, kPictureSize + 2, kTravelTextWidth, 18);
        if (column.opensPopup) {
            for (QLabel* opener : {image, text}) {
                opener->setCursor(Qt::PointingHandCursor);
                opener->installEventFilter(this);
            }
        }
    }
    labelPress1 = header->findChild<QLabel*>(QStringLiteral("labelPress1"));
    labelPress3 = header->findChild<QLabel*>(QStringLiteral("labelPress3"));
    labelRelease2 = header->findChild<QLabel*>(QStringLiteral("labelRelease2"));
    labelRelease4 = header->findChild<QLabel*>(QStringLiteral("labelRelease4"));
    editor->addWidget(header);
    for (int i = 0; i < kDksRows; ++i) {
        frameDKS[i] = new ModuleDKSItem(clock, tab);
        frameDKS[i]->setObjectName(QStringLiteral("frameDKS%1").arg(i + 1));
        editor->addWidget(frameDKS[i]);
    }
    editor->addStretch(1);
    layout->addLayout(editor);
    layout->addStretch(1);
    layout->addWidget(tipCard(tab, newLabel(tab, "labelTipDKS", "tipText")), 0, Qt::AlignTop);
    return tab;
}

QWidget* ModuleAdvancedKeys::buildMtTab()
{
    auto* tab = new QWidget();
    QHBoxLayout* layout = keyedTab(tab, QStringLiteral("MT"), pushButton_MT, pushButton_OKMT);

    auto* grid = new QGridLayout();
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    buttonGroupMT = new QButtonGroup(tab);
    buttonGroupMT->setObjectName(QStringLiteral("buttonGroupMT"));
    pushButton_MT1 = newButton(tab, "pushButton_MT1", "function");
    pushButton_MT2 = newButton(tab, "pushButton_MT2", "function");
    pushButton_MT1->setProperty(kCaptionProperty, QByteArray(kTap));
    pushButton_MT2->setProperty(kCaptionProperty, QByteArray(kHold));
    for (QPushButton* button : {pushButton_MT1, pushButton_MT2}) {
        button->setFixedSize(kFunctionSize);
        buttonGroupMT->addButton(button);
    }
    grid->addWidget(newLabel(tab, "labelTapCaption", "caption"), 0, 0);
    grid->addWidget(newLabel(tab, "labelHoldCaption", "caption"), 0, 1);
    grid->addWidget(pushButton_MT1, 1, 0);
    grid->addWidget(pushButton_MT2, 1, 1);
    grid->setRowMinimumHeight(2, 10);
    grid->addWidget(newLabel(tab, "labelTimeFlag", "section"), 3, 0, 1, 3);

    auto* holdRow = new QHBoxLayout();
    holdRow->setSpacing(10);
    QLabel* from = newLabel(tab, "labelFlag1", "flag");
    from->setText(QStringLiteral("0ms"));
    horizontalSlider = new CustumSlider(Qt::Horizontal, tab);
    horizontalSlider->setObjectName(QStringLiteral("horizontalSlider"));
    horizontalSlider->setRange(0, kHoldMaximum);
    horizontalSlider->setValue(kHoldInitial);
    horizontalSlider->setMinimumWidth(200);
    horizontalSlider->setCursor(Qt::PointingHandCursor);
    QLabel* to = newLabel(tab, "labelFlag2", "flag");
    to->setText(QStringLiteral("200ms"));
    lineEditValue = new QLineEdit(QStringLiteral("%1 ms").arg(kHoldInitial), tab);
    lineEditValue->setObjectName(QStringLiteral("lineEditValue"));
    holdRow->addWidget(from);
    holdRow->addWidget(horizontalSlider, 1);
    holdRow->addWidget(to);
    holdRow->addSpacing(6);
    holdRow->addWidget(lineEditValue);
    grid->addLayout(holdRow, 4, 0, 1, 3);
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(2, 1);
    layout->addLayout(grid, 1);
    layout->addWidget(tipCard(tab, newLabel(tab, "labelTip", "tipText")), 0, Qt::AlignTop);
    return tab;
}

QWidget* ModuleAdvancedKeys::buildTglTab()
{
    auto* tab = new QWidget();
    QHBoxLayout* layout = keyedTab(tab, QStringLiteral("TGL"), pushButton_TGL, pushButton_OKTGL);

    auto* column = new QVBoxLayout();
    column->setSpacing(8);
    column->addWidget(newLabel(tab, "labelFunctionTGL", "caption"));
    buttonGroupTGL = new QButtonGroup(tab);
    buttonGroupTGL->setObjectName(QStringLiteral("buttonGroupTGL"));
    pushButton_TGL1 = newButton(tab, "pushButton_TGL1", "function");
    pushButton_TGL1->setProperty(kCaptionProperty, QByteArray(kNoFunction));
    pushButton_TGL1->setFixedSize(kWideFunctionSize);
    buttonGroupTGL->addButton(pushButton_TGL1);
    column->addWidget(pushButton_TGL1);
    column->addSpacing(12);
    auto* kinds = new QHBoxLayout();
    kinds->setSpacing(28);
    radioButton_TGL1 = new QRadioButton(tab);
    radioButton_TGL1->setObjectName(QStringLiteral("radioButton_TGL1"));
    radioButton_TGL2 = new QRadioButton(tab);
    radioButton_TGL2->setObjectName(QStringLiteral("radioButton_TGL2"));
    radioButton_TGL1->setChecked(true);
    for (QRadioButton* radio : {radioButton_TGL1, radioButton_TGL2}) {
        radio->setCursor(Qt::PointingHandCursor);
        radio->setFocusPolicy(Qt::NoFocus);
        kinds->addWidget(radio);
    }
    kinds->addStretch(1);
    column->addLayout(kinds);
    column->addStretch(1);
    layout->addLayout(column, 1);
    layout->addWidget(tipCard(tab, newLabel(tab, "label_6", "tipText")), 0, Qt::AlignTop);
    return tab;
}

QWidget* ModuleAdvancedKeys::buildSnapTab()
{
    auto* tab = new QWidget();
    QHBoxLayout* layout = tabLayout(tab);
    buttonGroupSnap = new QButtonGroup(tab);
    buttonGroupSnap->setObjectName(QStringLiteral("buttonGroupSnap"));
    pushButton_Snap1 = newButton(tab, "pushButton_Snap1", "keycap");
    pushButton_Snap2 = newButton(tab, "pushButton_Snap2", "keycap");
    buttonGroupSnap->addButton(pushButton_Snap1);
    buttonGroupSnap->addButton(pushButton_Snap2);
    radioButton_Snap1 = new QRadioButton(tab);
    radioButton_Snap1->setObjectName(QStringLiteral("radioButton_Snap1"));
    radioButton_Snap2 = new QRadioButton(tab);
    radioButton_Snap2->setObjectName(QStringLiteral("radioButton_Snap2"));
    radioButton_Snap1->setChecked(true);
    for (QRadioButton* radio : {radioButton_Snap1, radioButton_Snap2}) {
        radio->setCursor(Qt::PointingHandCursor);
        radio->setFocusPolicy(Qt::NoFocus);
    }
    pushButton_OKSnap = newButton(tab, "pushButton_OKSnap", "save");
    layout->addLayout(keyColumn(radioButton_Snap1, pushButton_Snap1, pushButton_OKSnap));
    // The two keys stand as a pair; B's column has no save of its own.
    QLabel* swap = newLabel(tab, "labelSwap", "");
    swap->setText(QStringLiteral("⇄"));
    pushButton_Snap2->setFixedSize(kKeySize);
    pushButton_Snap2->setCursor(Qt::PointingHandCursor);
    pushButton_Snap1->setCursor(Qt::PointingHandCursor);
    auto* middle = new QVBoxLayout();
    middle->addSpacing(26);
    middle->addWidget(swap);
    middle->addStretch(1);
    layout->addLayout(middle);
    auto* second = new QVBoxLayout();
    second->setSpacing(8);
    second->addWidget(radioButton_Snap2);
    second->addWidget(pushButton_Snap2);
    second->addStretch(1);
    layout->addLayout(second);
    layout->addStretch(1);
    layout->addWidget(tipCard(tab, newLabel(tab, "label_4", "tipText")), 0, Qt::AlignTop);
    return tab;
}

void ModuleAdvancedKeys::showOn(QAbstractButton* button, const QString& text)
{
    button->setProperty("showsCaption", text.isEmpty());
    button->setText(
        text.isEmpty() ? QCoreApplication::translate(
                             "ModuleAdvancedKeys", button->property(kCaptionProperty).toByteArray())
                       : text);
}

void ModuleAdvancedKeys::retranslate()
{
    for (int i = 0; i < int(kTabs.size()); ++i)
        tabWidgetAdv->setTabText(i, tr(kTabs[i].title));
    for (const FixedText& fixed : kFixedTexts) {
        QWidget* widget = findChild<QWidget*>(QLatin1String(fixed.name));
        if (auto* label = qobject_cast<QLabel*>(widget))
            label->setText(tr(fixed.text));
        else if (auto* button = qobject_cast<QAbstractButton*>(widget))
            button->setText(tr(fixed.text));
    }
    for (QAbstractButton* button : findChildren<QAbstractButton*>()) {
        if (button->property(kCaptionProperty).isValid() &&
            button->property("showsCaption").toBool())
            showOn(button, QString());
    }
}

// Called once the form stands: every button that shows a key or a function starts empty.
void ModuleAdvancedKeys::setEmptyCaptions()
{
    for (QPushButton* key :
         {pushButton_DKS, pushButton_MT, pushButton_TGL, pushButton_Snap1, pushButton_Snap2}) {
        key->setProperty(kCaptionProperty, QByteArray(kNoKey));
        showOn(key, QString());
    }
    for (QPushButton* function : {pushButton_MT1, pushButton_MT2, pushButton_TGL1})
        showOn(function, QString());
}
