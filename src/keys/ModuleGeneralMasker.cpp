#include "ModuleGeneralMasker.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QStyleOption>
#include <QVBoxLayout>

namespace {
const char* const kMaskStyle =
    "QDialog { background-color: rgba(180, 180, 180, 0.8);  border: none; border-radius: 24px;}";
}

ModuleGeneralMasker::ModuleGeneralMasker(QWidget* shown, QWidget* frameWidget)
    : QDialog(frameWidget, Qt::Dialog | Qt::FramelessWindowHint), child(shown)
{
    setObjectName(QStringLiteral("ModuleGeneralMasker"));
    setAttribute(Qt::WA_TranslucentBackground);
    setStyleSheet(QLatin1String(kMaskStyle));
    auto* layout = new QVBoxLayout(this);
    if (child) {
        child->setParent(this, Qt::Widget);
        layout->addWidget(child, 0, Qt::AlignCenter);
        child->installEventFilter(this);
        child->show();
        child->raise();
    }
    QRect area = QGuiApplication::primaryScreen()->geometry();
    if (frameWidget)
        area = QRect(frameWidget->mapToGlobal(QPoint(0, 0)), frameWidget->frameGeometry().size())
                   .adjusted(1, 1, -1, -1);
    setGeometry(area);
    setFixedSize(area.size());
    raise();
}

bool ModuleGeneralMasker::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == child && event->type() == QEvent::Hide) {
        // The child goes back to its owner as it came: loose, hidden, unwatched.
        layout()->removeWidget(child);
        child->hide();
        child->removeEventFilter(this);
        child->setParent(nullptr);
        if (result() == 1)
            accept();
        else
            reject();
        return false;
    }
    return QDialog::eventFilter(watched, event);
}

void ModuleGeneralMasker::mousePressEvent(QMouseEvent* event)
{
    emit onClicked();
    QDialog::mousePressEvent(event);
}

void ModuleGeneralMasker::paintEvent(QPaintEvent*)
{
    // A translucent window paints no background of its own: the style sheet's mask is painted
    // here, whichever style the caller gave.
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
