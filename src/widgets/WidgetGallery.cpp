// Renders each shared control in a few states to PNG files, so that a change of painting can be
// looked at without the whole hub: orbe_widget_gallery <folder>.

#include "CustomTabBar.h"
#include "CustomTooltip.h"
#include "CustumSlider.h"
#include "ModuleScrollValue.h"
#include "ModuleVideoItem.h"
#include "NewTabWidget.h"
#include "SuperLabel.h"
#include "ToggleButton.h"

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QTextStream>
#include <QVBoxLayout>

namespace {

// The kind of style sheet the pages' forms give a slider.
const QString sliderStyle = QStringLiteral(
    "QSlider::groove:horizontal { height: 6px; background: #EDE6F8; border-radius: 3px; }"
    "QSlider::sub-page:horizontal { background: #6329B6; border-radius: 3px; }"
    "QSlider::handle:horizontal { width: 16px; margin: -5px 0; background: #FFFFFF;"
    " border: 2px solid #6329B6; border-radius: 8px; }"
    "QSlider::groove:vertical { width: 6px; background: #EDE6F8; border-radius: 3px; }"
    "QSlider::add-page:vertical { background: #6329B6; border-radius: 3px; }"
    "QSlider::handle:vertical { height: 16px; margin: 0 -5px; background: #FFFFFF;"
    " border: 2px solid #6329B6; border-radius: 8px; }");

QPixmap dot(const QColor& colour)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(4, 4, 16, 16));
    return pixmap;
}

QWidget* page(QWidget* content, const QSize& size)
{
    auto* frame = new QWidget;
    frame->setStyleSheet(QStringLiteral("background-color: #F6F6F6;"));
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->addWidget(content);
    frame->resize(size);
    return frame;
}

bool save(QWidget* widget, const QString& path)
{
    widget->show();
    return widget->grab().save(path);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(".");
    QDir().mkpath(folder);
    const QString dotOn = folder + QStringLiteral("/gallery-dot-on.png");
    const QString dotOff = folder + QStringLiteral("/gallery-dot-off.png");
    dot(Qt::white).save(dotOn);
    dot(QColor(0xC8, 0xC8, 0xC8)).save(dotOff);

    QList<QPair<QString, QWidget*>> shots;

    {
        auto* toggles = new QWidget;
        toggles->setStyleSheet(QStringLiteral("background: #FFFFFF;"));
        auto* row = new QHBoxLayout(toggles);
        for (int i = 0; i < 4; ++i) {
            auto* toggle = new ToggleButton;
            toggle->setChecked(i % 2 == 0);
            toggle->setEnabled(i < 2);
            row->addWidget(toggle);
        }
        shots.append({QStringLiteral("toggle-button.png"), page(toggles, {300, 80})});
    }
    {
        auto* sliders = new QWidget;
        sliders->setStyleSheet(QStringLiteral("QWidget { background: #FFFFFF; }") + sliderStyle);
        auto* row = new QHBoxLayout(sliders);
        auto* horizontal = new CustumSlider(Qt::Horizontal);
        horizontal->setRange(100, 4000);
        horizontal->setValue(1500);
        auto* vertical = new CustumSlider(Qt::Vertical);
        vertical->setRange(0, 100);
        vertical->setValue(70);
        vertical->setFixedHeight(120);
        row->addWidget(horizontal);
        row->addWidget(vertical);
        shots.append({QStringLiteral("custum-slider.png"), page(sliders, {360, 170})});
    }
    {
        auto* wheel = new ModuleScrollValue;
        wheel->setValues({QStringLiteral("125Hz"), QStringLiteral("250Hz"), QStringLiteral("500Hz"),
                          QStringLiteral("1000Hz"), QStringLiteral("2000Hz"),
                          QStringLiteral("4000Hz"), QStringLiteral("8000Hz")});
        wheel->setIndex(3);
        shots.append({QStringLiteral("module-scroll-value.png"), page(wheel, {180, 230})});
    }
    {
        auto* tabs = new NewTabWidget;
        tabs->setStyleSheet(QStringLiteral("QTabWidget::pane { background: #FFFFFF; border: 1px "
                                           "solid #F6F6F6; } QTabBar::tab { height: 44px; "
                                           "width: 140px; }"));
        tabs->addTab(new QLabel(QStringLiteral("操作教学")), QStringLiteral("操作教学"));
        tabs->addTab(new QLabel(QStringLiteral("关于Orbe")), QStringLiteral("关于Orbe"));
        tabs->addTab(new QLabel(QStringLiteral("Tab")), QStringLiteral("更多"));
        tabs->setCurrentIndex(1);
        CustomTabBar* bar = tabs->customTabBar();
        bar->setCurrentX(bar->tabRect(1).x());
        bar->setCurrentWidth(bar->tabRect(1).width());
        shots.append({QStringLiteral("new-tab-widget.png"), page(tabs, {480, 160})});
    }
    {
        auto* labels = new QWidget;
        labels->setStyleSheet(QStringLiteral("background: #FFFFFF;"));
        auto* column = new QVBoxLayout(labels);
        const QString on =
            QStringLiteral("QLabel { background-color: #6329B6; border-radius: 16px;}");
        const QString off = QStringLiteral("QLabel { background-color: transparent; }");
        for (int i = 0; i < 3; ++i) {
            auto* label = new SuperLabel(labels);
            label->setFixedSize(48, 48);
            label->setAlignment(Qt::AlignCenter);
            label->setPictures(dotOn, dotOff);
            label->setStyles(on, off);
            label->setSelected(i == 1);
            column->addWidget(label);
        }
        shots.append({QStringLiteral("super-label.png"), page(labels, {110, 220})});
    }
    {
        auto* tip = new CustomTooltip;
        tip->setText(QStringLiteral("清除设置"));
        tip->resize(120, 40);
        shots.append({QStringLiteral("custom-tooltip.png"), tip});
    }
    {
        auto* card = new ModuleVideoItem;
        card->setFixedSize(340, 280);
        shots.append({QStringLiteral("module-video-item.png"), page(card, {372, 312})});
    }

    int failures = 0;
    for (const auto& [name, widget] : shots) {
        const QString path = folder + u'/' + name;
        if (save(widget, path)) {
            out << "wrote " << path << Qt::endl;
        } else {
            out << "could not write " << path << Qt::endl;
            ++failures;
        }
        delete widget;
    }
    return failures == 0 ? 0 : 1;
}
