#include "MacroSquare.h"

#include "MacroEvent.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QList>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QStyle>
#include <QVBoxLayout>

namespace {

constexpr int kPopupSize = 18;
constexpr int kPositionShift = 8; // a position holds one coordinate per byte
constexpr int kShortText = 5;     // longer key names take a smaller font

QList<QPointer<MacroSquare>>& cache()
{
    static QList<QPointer<MacroSquare>> squares;
    return squares;
}

QPointer<MacroSquare>& lastPressedSquare()
{
    static QPointer<MacroSquare> square;
    return square;
}

// The kind the style sheet colours the square by.
const char* kindOf(quint8 type, bool down)
{
    switch (type) {
    case MacroEvent::Key:
    case MacroEvent::MouseButton:
        return down ? "press" : "release";
    case MacroEvent::MousePosition:
        return "position";
    default:
        return "delay";
    }
}

} // namespace

MacroSquare::MacroSquare(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("MacroSquare"));
    setCursor(Qt::PointingHandCursor);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    label = new QLabel(this);
    label->setObjectName(QStringLiteral("labelText"));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true); // "Print-Screen" breaks after its dash
    label->installEventFilter(this);
    layout->addWidget(label);
    spinFirst = makeSpin(kMinDelay, kMaxDelay);
    spinFirst->setObjectName(QStringLiteral("spinBoxValue"));
    spinSecond = makeSpin(0, kMaxPosition);
    spinSecond->setObjectName(QStringLiteral("spinBoxSecond"));

    pushButtonInsertHere = new QPushButton(this);
    pushButtonInsertHere->setObjectName(QStringLiteral("pushButtonInsertHere"));
    pushButtonInsertHere->setIcon(QIcon(QStringLiteral(":/images/macropage/square-insert.png")));
    pushButtonDeleteThis = new QPushButton(this);
    pushButtonDeleteThis->setObjectName(QStringLiteral("pushButtonDeleteThis"));
    pushButtonDeleteThis->setIcon(QIcon(QStringLiteral(":/images/macropage/square-delete.png")));
    for (QPushButton* button : {pushButtonInsertHere, pushButtonDeleteThis}) {
        button->setFixedSize(kPopupSize, kPopupSize);
        button->setIconSize(QSize(kPopupSize, kPopupSize));
        button->setFocusPolicy(Qt::NoFocus);
        button->hide();
    }
    pushButtonInsertHere->move(0, 0);
    connect(pushButtonInsertHere, &QPushButton::clicked, this, [this] {
        showPopups(false);
        emit onAction(this, InsertHere);
    });
    connect(pushButtonDeleteThis, &QPushButton::clicked, this, [this] {
        showPopups(false);
        emit onAction(this, DeleteThis);
    });
    changeEvent(nullptr);
}

QSpinBox* MacroSquare::makeSpin(int minimum, int maximum)
{
    auto* spin = new QSpinBox(this);
    spin->setRange(minimum, maximum);
    spin->setButtonSymbols(QAbstractSpinBox::NoButtons);
    spin->setAlignment(Qt::AlignCenter);
    spin->setKeyboardTracking(false);
    spin->installEventFilter(this);
    spin->hide();
    layout()->addWidget(spin);
    return spin;
}

MacroSquare* MacroSquare::acquire(QWidget* parent)
{
    QList<QPointer<MacroSquare>>& squares = cache();
    squares.removeAll(nullptr);
    for (MacroSquare* square : std::as_const(squares)) {
        if (square->m_inUse) continue;
        if (square->parentWidget() != parent) square->setParent(parent);
        square->m_inUse = true;
        return square;
    }
    auto* square = new MacroSquare(parent);
    square->m_inUse = true;
    squares.append(square);
    return square;
}

void MacroSquare::release()
{
    endEdit();
    showPopups(false);
    hide();
    m_selected = false;
    m_inUse = false;
}

void MacroSquare::setEvent(quint8 type, bool down, quint16 value, const QString& text)
{
    m_type = type;
    m_down = down;
    m_text = text;
    setFixedSize(type == MacroEvent::Delay ? kDelaySize : kActionSize);
    setProperty("kind", QLatin1String(kindOf(type, down)));
    setValue(value);
}

void MacroSquare::setValue(quint16 value)
{
    m_value = value;
    if (m_type == MacroEvent::MousePosition) {
        // The spins start from the numbers as shown: low byte first.
        m_spinX = value & 0xFF;
        m_spinY = value >> kPositionShift;
    }
    refresh();
}

QString MacroSquare::buttonWord(quint16 code)
{
    switch (code) {
    case MacroEvent::kMouseLeft:
        return tr("左键");
    case MacroEvent::kMouseRight:
        return tr("右键");
    case MacroEvent::kMouseMiddle:
        return tr("中键");
    default:
        return {};
    }
}

QString MacroSquare::shownText() const
{
    switch (m_type) {
    case MacroEvent::MouseButton: {
        const QString word = buttonWord(m_value);
        return word.isEmpty() ? m_text : word;
    }
    case MacroEvent::MousePosition:
        // Deliberate: the low byte shows as X although the dialog stores X in the high byte, so
        // the two numbers trade places between the dialog and the square.
        return QStringLiteral("X: %1\nY: %2").arg(m_value & 0xFF).arg(m_value >> kPositionShift);
    case MacroEvent::Delay:
        return QStringLiteral("%1\nms").arg(m_value);
    default:
        return m_text;
    }
}

void MacroSquare::refresh()
{
    const QString shown = shownText();
    label->setText(shown);
    // Polishing is what costs: only when the look's properties changed.
    const QString look = property("kind").toString() + (m_selected ? u'*' : u' ') +
                         (shown.size() > kShortText ? u'L' : u'S');
    if (look == polishedLook) return;
    polishedLook = look;
    setProperty("selected", m_selected);
    label->setProperty("long", shown.size() > kShortText);
    style()->unpolish(this);
    style()->polish(this);
    label->style()->unpolish(label);
    label->style()->polish(label);
}

void MacroSquare::setSelected(bool selected)
{
    if (selected == m_selected) return;
    m_selected = selected;
    refresh();
}

MacroSquare* MacroSquare::lastPressed()
{
    return lastPressedSquare();
}

void MacroSquare::beginEdit()
{
    if (m_type != MacroEvent::Delay && m_type != MacroEvent::MousePosition) return;
    showPopups(false);
    label->hide();
    if (m_type == MacroEvent::Delay) {
        spinFirst->setRange(kMinDelay, kMaxDelay);
        spinFirst->setValue(m_value);
    } else {
        spinFirst->setRange(0, kMaxPosition);
        spinFirst->setValue(m_spinX);
        spinSecond->setValue(m_spinY);
        spinSecond->show();
    }
    spinFirst->show();
    spinFirst->setFocus();
    spinFirst->selectAll();
}

bool MacroSquare::isEditing() const
{
    return label->isHidden();
}

void MacroSquare::endEdit()
{
    if (!label->isHidden()) return;
    spinFirst->interpretText();
    spinSecond->interpretText();
    spinFirst->hide();
    spinSecond->hide();
    label->show();
    if (m_inUse) {
        if (m_type == MacroEvent::Delay)
            setValue(quint16(spinFirst->value()));
        else if (m_type == MacroEvent::MousePosition)
            setValue(quint16(spinFirst->value() * 256 + spinSecond->value()));
        else
            return;
        emit valueEdited(this);
    }
}

void MacroSquare::showPopups(bool show)
{
    pushButtonDeleteThis->move(width() - kPopupSize, 0);
    for (QPushButton* button : {pushButtonInsertHere, pushButtonDeleteThis}) {
        button->setVisible(show);
        if (show) button->raise();
    }
}

void MacroSquare::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (m_type != MacroEvent::Key && m_type != MacroEvent::MouseButton) return;
    // The legend's dot: white for a release, dark for a press.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_down ? QColor(0x15121C) : QColor(Qt::white));
    constexpr qreal kDot = 6;
    painter.drawEllipse(QRectF((width() - kDot) / 2, height() - kDot - 6, kDot, kDot));
}

void MacroSquare::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return QFrame::mousePressEvent(event);
    setSelected(!m_selected);
    lastPressedSquare() = this;
    event->accept();
}

void MacroSquare::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return QFrame::mouseReleaseEvent(event);
    // A delay square never offers to insert or delete: the pairing is kept by its action.
    if (m_type != MacroEvent::Delay && !isEditing() && rect().contains(event->position().toPoint()))
        showPopups(true);
    event->accept();
}

void MacroSquare::leaveEvent(QEvent* event)
{
    showPopups(false);
    QFrame::leaveEvent(event);
}

void MacroSquare::changeEvent(QEvent* event)
{
    if (!event || event->type() == QEvent::LanguageChange) {
        pushButtonInsertHere->setToolTip(tr("在此处插入"));
        pushButtonDeleteThis->setToolTip(tr("删除此事件"));
        if (event) {
            polishedLook.clear();
            refresh();
        }
    }
    if (event) QFrame::changeEvent(event);
}

bool MacroSquare::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == label && event->type() == QEvent::MouseButtonRelease) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::LeftButton &&
            label->rect().contains(mouse->position().toPoint()))
            beginEdit();
        return false;
    }
    if (watched == spinFirst || watched == spinSecond) {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                endEdit();
                return true;
            }
        } else if (event->type() == QEvent::FocusOut) {
            // Moving from X to Y is still the same edit.
            QWidget* next = QApplication::focusWidget();
            if (next != spinFirst && next != spinSecond) endEdit();
        }
    }
    return QFrame::eventFilter(watched, event);
}
