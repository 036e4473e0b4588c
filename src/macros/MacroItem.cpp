#include "MacroItem.h"

#include "Macro.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyle>

namespace {

constexpr int kRowHeight = 44;
constexpr int kButtonSize = 26;
constexpr int kMaxNameLength = 32;

} // namespace

MacroItem::MacroItem(Macro* macro, QWidget* parent) : QFrame(parent), m_macro(macro)
{
    setObjectName(QStringLiteral("MacroItem"));
    setFixedHeight(kRowHeight);
    setCursor(Qt::PointingHandCursor);
    setProperty("selected", false);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(14, 0, 8, 0);
    layout->setSpacing(4);

    lineEditName = new QLineEdit(this);
    lineEditName->setObjectName(QStringLiteral("lineEditName"));
    lineEditName->setText(macro ? macro->name : QString());
    lineEditName->setMaxLength(kMaxNameLength);
    lineEditName->setReadOnly(true);
    lineEditName->setFocusPolicy(Qt::NoFocus);
    lineEditName->setCursor(Qt::PointingHandCursor);
    lineEditName->installEventFilter(this);
    layout->addWidget(lineEditName, 1);

    pushButtonRename = new QPushButton(this);
    pushButtonRename->setObjectName(QStringLiteral("pushButtonRename"));

    pushButtonDel = new QPushButton(this);
    pushButtonDel->setObjectName(QStringLiteral("pushButtonDel"));

    for (QPushButton* button : {pushButtonRename, pushButtonDel}) {
        button->setFixedSize(kButtonSize, kButtonSize);
        button->setIconSize(QSize(18, 18));
        button->setFocusPolicy(Qt::NoFocus);
        layout->addWidget(button);
    }
    setSelected(false);
    connect(pushButtonRename, &QPushButton::clicked, this, &MacroItem::beginRename);
    connect(pushButtonDel, &QPushButton::clicked, this, [this] { emit onOperation(Delete, this); });
    connect(lineEditName, &QLineEdit::editingFinished, this, [this] { endRename(true); });
    retranslate();
}

QString MacroItem::text() const
{
    return lineEditName->text();
}

void MacroItem::setSelected(bool selected)
{
    m_selected = selected;
    setProperty("selected", selected);
    // White glyphs on the purple of a selected row.
    pushButtonRename->setIcon(QIcon(selected ? QStringLiteral(":/images/macropage/rename-light.png")
                                             : QStringLiteral(":/images/macropage/rename.png")));
    pushButtonDel->setIcon(QIcon(selected ? QStringLiteral(":/images/macropage/delete-light.png")
                                          : QStringLiteral(":/images/macropage/delete.png")));
    for (QWidget* widget : {static_cast<QWidget*>(this), static_cast<QWidget*>(lineEditName)}) {
        widget->style()->unpolish(widget);
        widget->style()->polish(widget);
    }
}

void MacroItem::beginRename()
{
    if (!lineEditName->isReadOnly()) return;
    shownName = lineEditName->text();
    lineEditName->setReadOnly(false);
    lineEditName->setFocusPolicy(Qt::StrongFocus);
    lineEditName->setCursor(Qt::IBeamCursor);
    lineEditName->setFocus();
    lineEditName->selectAll();
}

void MacroItem::endRename(bool keep)
{
    if (lineEditName->isReadOnly()) return;
    lineEditName->setReadOnly(true);
    lineEditName->setFocusPolicy(Qt::NoFocus);
    lineEditName->setCursor(Qt::PointingHandCursor);
    lineEditName->deselect();
    const QString name = lineEditName->text().trimmed();
    // An empty name would leave a row nobody can find again; it keeps the old one.
    if (!keep || name.isEmpty() || name == shownName) {
        lineEditName->setText(shownName);
        return;
    }
    lineEditName->setText(name);
    emit onOperation(Rename, this);
}

void MacroItem::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) emit onOperation(Select, this);
    event->accept();
}

bool MacroItem::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lineEditName) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            if (lineEditName->isReadOnly()) {
                emit onOperation(Select, this);
                return true;
            }
            break;
        case QEvent::MouseButtonDblClick:
            if (lineEditName->isReadOnly()) {
                beginRename();
                return true;
            }
            break;
        case QEvent::FocusOut:
            // editingFinished skips a focus loss with the text unchanged.
            endRename(true);
            break;
        case QEvent::KeyPress:
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
                endRename(false);
                return true;
            }
            break;
        default:
            break;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void MacroItem::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}

void MacroItem::retranslate()
{
    pushButtonRename->setToolTip(tr("重命名"));
    pushButtonDel->setToolTip(tr("删除宏"));
}
