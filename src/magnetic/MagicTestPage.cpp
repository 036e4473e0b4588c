#include "MagicTestPage.h"

#include "DialogDeviceConnect.h"
#include "KeyEventCodes.h"
#include "KeyNameTable.h"
#include "ToggleButton.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

// The ruler: 35 ticks, a long one and a label every fifth, reading 0.00 to 3.00 and on.
constexpr int kTicks = 35;
constexpr int kRulerInset = 4;
constexpr int kBottomBand = 24; // the keyboard's bottom under the bar
constexpr QColor kBarColour{0x63, 0x29, 0xB6};
constexpr QColor kGroove{0xE2, 0xE2, 0xE8};
constexpr QColor kBottom{0x3F, 0x3F, 0x46};
constexpr int kWideNameFrom = 4; // characters
const char* const kNameStyle =
    "QLabel{border:2px solid blue; border-radius:6px; width:30px; height:30px;}";
constexpr int kNameSide = 42;
constexpr int kWideName = 80;
constexpr int kScrollToEnd = 0xFFFF;

QString framePicture(int index)
{
    return QStringLiteral(":/images/press/press%1.png").arg(index, 2, 10, QLatin1Char('0'));
}

// Removes and hides every widget of a layout; the widgets stay children of their parent.
void emptyLayout(QLayout* layout)
{
    while (QLayoutItem* item = layout->takeAt(0)) {
        if (QWidget* w = item->widget()) w->hide();
        delete item;
    }
}

QHBoxLayout* headLine(QLabel* title, ToggleButton* toggle)
{
    auto* line = new QHBoxLayout;
    line->addWidget(title);
    line->addStretch(1);
    line->addWidget(toggle);
    return line;
}

} // namespace

MagicTestPage::MagicTestPage(DialogDeviceConnect* connection, QWidget* parent)
    : QWidget(parent), device(connection)
{
    setObjectName(QStringLiteral("page4"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(16);
    layout->addWidget(buildTravelTest());
    layout->addWidget(buildKeyTest(), 1);
    retranslate();
    showFrame(kPressFrames - 1);

    connect(checkBoxKeytest0, &QCheckBox::clicked, this, [this](bool on) {
        if (on)
            device->DoStartKeyTest();
        else
            device->DoStopKeyTest();
        labelPress->update();
    });
    connect(device, &DialogDeviceConnect::onKeyTest, this, [this] {
        if (checkBoxKeytest0->isChecked()) labelPress->update();
    });
    connect(checkBoxKeytest1, &QCheckBox::clicked, this, [this](bool on) {
        // The list of seen keys starts again; a key held now stays until its release.
        emptyLayout(gridLayout_2);
        gridLayout_2->setAlignment(Qt::AlignTop);
        emit keyTestSwitched(on);
    });
}

QWidget* MagicTestPage::buildTravelTest()
{
    auto* card = new QFrame(this);
    card->setObjectName(QStringLiteral("frameTravelTest"));
    card->setProperty("role", QStringLiteral("card"));
    card->setFixedWidth(300);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(18, 12, 18, 12);
    labelTitle5 = new QLabel(card);
    labelTitle5->setObjectName(QStringLiteral("labelTitle5"));
    labelTitle5->setProperty("role", QStringLiteral("cardTitle"));
    checkBoxKeytest0 = new ToggleButton(card);
    checkBoxKeytest0->setObjectName(QStringLiteral("checkBoxKeytest0"));
    checkBoxKeytest0->setFocusPolicy(Qt::NoFocus);
    labelKeymt = new QLabel(card);
    labelKeymt->setObjectName(QStringLiteral("labelKeymt"));
    labelKeymt->setFixedSize(132, 132);
    labelKeymt->setScaledContents(true);
    labelPress = new QLabel(card);
    labelPress->setObjectName(QStringLiteral("labelPress"));
    labelPress->setFixedSize(104, 200);
    labelPress->installEventFilter(this);
    auto* body = new QHBoxLayout;
    body->addWidget(labelKeymt, 0, Qt::AlignCenter);
    body->addWidget(labelPress, 0, Qt::AlignCenter);
    layout->addLayout(headLine(labelTitle5, checkBoxKeytest0));
    layout->addLayout(body, 1);
    return card;
}

QWidget* MagicTestPage::buildKeyTest()
{
    auto* card = new QFrame(this);
    card->setObjectName(QStringLiteral("frameKeyTest"));
    card->setProperty("role", QStringLiteral("card"));
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(18, 12, 18, 12);
    layout->setSpacing(6);
    labelTitle3 = new QLabel(card);
    labelTitle3->setObjectName(QStringLiteral("labelTitle3"));
    labelTitle3->setProperty("role", QStringLiteral("cardTitle"));
    checkBoxKeytest1 = new ToggleButton(card);
    checkBoxKeytest1->setObjectName(QStringLiteral("checkBoxKeytest1"));
    checkBoxKeytest1->setFocusPolicy(Qt::NoFocus);

    scrollArea0 = new QScrollArea(card);
    scrollArea0->setObjectName(QStringLiteral("scrollArea0"));
    scrollArea0->setWidgetResizable(true);
    scrollArea0->setFixedHeight(62);
    scrollAreaWidgetContents0 = new QWidget;
    scrollAreaWidgetContents0->setObjectName(QStringLiteral("scrollAreaWidgetContents0"));
    auto* heldRow = new QHBoxLayout(scrollAreaWidgetContents0);
    heldRow->setContentsMargins(6, 6, 6, 6);
    heldRow->setSpacing(6);
    scrollArea0->setWidget(scrollAreaWidgetContents0);

    labelTitle4 = new QLabel(card);
    labelTitle4->setObjectName(QStringLiteral("labelTitle4"));
    labelTitle4->setProperty("role", QStringLiteral("rowTitle"));
    scrollArea1 = new QScrollArea(card);
    scrollArea1->setObjectName(QStringLiteral("scrollArea1"));
    scrollArea1->setWidgetResizable(true);
    auto* seen = new QWidget;
    seen->setObjectName(QStringLiteral("scrollAreaWidgetContents1"));
    gridLayout_2 = new QGridLayout(seen);
    gridLayout_2->setObjectName(QStringLiteral("gridLayout_2"));
    gridLayout_2->setContentsMargins(6, 6, 6, 6);
    gridLayout_2->setSpacing(6);
    gridLayout_2->setAlignment(Qt::AlignTop);
    scrollArea1->setWidget(seen);

    layout->addLayout(headLine(labelTitle3, checkBoxKeytest1));
    layout->addWidget(scrollArea0);
    layout->addWidget(labelTitle4);
    layout->addWidget(scrollArea1, 1);
    return card;
}

bool MagicTestPage::isKeyTestOn() const
{
    return checkBoxKeytest1->isChecked();
}

QString MagicTestPage::keyName(const QKeyEvent& event)
{
    QString name = event.text().trimmed().toUpper();
    name.remove(QChar(u'\b'));
    if (!name.isEmpty()) return name;
    // Keys without text (modifiers, arrows, F keys) are named by their scan code. On Linux the
    // native code is an X11 key code, not a Windows scan code: it is brought to the Windows code
    // first, so that the test names the same keys a Windows user sees.
    const quint16 scan = KeyEventCodes::scanCode(event);
    return scan ? KeyNameByScan(scan) : QString();
}

void MagicTestPage::keyPressed(const QKeyEvent& event)
{
    const QString name = keyName(event);
    if (held.contains(name)) return; // auto-repeat of a held key
    held.append(name);
    rebuildHeldRow();
    const int count = gridLayout_2->count();
    gridLayout_2->addWidget(nameLabel(name, gridLayout_2->parentWidget()), count / kNamesPerRow,
                            count % kNamesPerRow);
    scrollArea1->verticalScrollBar()->setValue(kScrollToEnd);
}

void MagicTestPage::keyReleased(const QKeyEvent& event)
{
    held.removeOne(keyName(event));
    rebuildHeldRow();
}

void MagicTestPage::rebuildHeldRow()
{
    QLayout* row = scrollAreaWidgetContents0->layout();
    emptyLayout(row);
    row->setAlignment(Qt::AlignLeft);
    for (const QString& name : std::as_const(held))
        row->addWidget(nameLabel(name, scrollAreaWidgetContents0));
}

QLabel* MagicTestPage::nameLabel(const QString& name, QWidget* parent) const
{
    auto* label = new QLabel(name, parent);
    label->setProperty("role", QStringLiteral("keyName"));
    label->setStyleSheet(QLatin1String(kNameStyle));
    label->setAlignment(Qt::AlignCenter);
    label->setFixedHeight(kNameSide);
    label->setFixedWidth(name.size() >= kWideNameFrom ? kWideName : kNameSide);
    return label;
}

bool MagicTestPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == labelPress && event->type() == QEvent::Paint) {
        paintRuler();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void MagicTestPage::paintRuler()
{
    QPainter painter(labelPress);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect r = labelPress->rect();
    const QRect inner = r.adjusted(kRulerInset, kRulerInset, -kRulerInset, -kRulerInset);
    QFont small = painter.font();
    small.setPixelSize(8);
    painter.setFont(small);
    painter.setPen(QPen(Qt::gray, 1));
    for (int i = 0; i < kTicks; ++i) {
        const qreal y = inner.top() + i * (inner.height() / 34.0);
        const bool major = i % 5 == 0;
        painter.drawLine(QPointF(inner.right() - 20, y),
                         QPointF(inner.right() - (major ? 10 : 15), y));
        painter.drawLine(QPointF(inner.left() + 40, y),
                         QPointF(inner.left() + (major ? 30 : 35), y));
        if (major)
            painter.drawText(QPointF(inner.left() + 2, y + 4), QString::asprintf("%.2f", i / 10.0));
    }

    QRect bar = r.adjusted(50, 4, -30, -4);
    QPainterPath rounded;
    rounded.addRoundedRect(bar, 6, 6);
    painter.setClipPath(rounded);
    painter.fillRect(bar, kGroove);
    painter.fillRect(bar.adjusted(0, bar.height() - kBottomBand, 0, 0), kBottom);
    if (!checkBoxKeytest0->isChecked()) return;

    const float depth = qMin(device->GetKeyTravel(), 0.999f); // a full press reads 1.0
    showFrame(kPressFrames - 1 - int(depth * 10.0f));
    // The bar's lower edge is a place in the label found from the height alone, so that it
    // starts at the label's top whatever the bar's own top.
    bar.setBottom(int((bar.height() - 20) * depth));
    if (bar.bottom() > bar.top()) painter.fillRect(bar, kBarColour);
}

void MagicTestPage::showFrame(int index)
{
    index = qBound(0, index, kPressFrames - 1);
    if (index == frame && !labelKeymt->pixmap().isNull()) return;
    frame = index;
    labelKeymt->setPixmap(QPixmap(framePicture(index)));
}

void MagicTestPage::retranslate()
{
    labelTitle5->setText(tr("行程测试"));
    labelTitle3->setText(tr("按键测试"));
    labelTitle4->setText(tr("输入值"));
}

void MagicTestPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QWidget::changeEvent(event);
}
