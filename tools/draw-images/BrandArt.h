#pragma once

#include <QImage>
#include <QPainter>
#include <QPointF>

// The two brands' marks, word marks, tray icon and start-up pictures.
namespace BrandArt {

// The first brand's mark: a ring with a small moon in its gap.
void drawOrbit(QPainter& painter, QPointF centre, double radius, QColor ring, QColor moon);
// The second brand's mark: a gear.
void drawGear(QPainter& painter, QPointF centre, double radius, QColor colour);

QImage orbeWordMark();     // drawn into 136 by 40
QImage tarnwickWordMark(); // drawn into 315 by 40
QImage trayIcon();
QImage orbeSplash();     // the window's size, 1280 by 900
QImage tarnwickSplash(); // the same, light, with room for the word mark at the top left

} // namespace BrandArt
