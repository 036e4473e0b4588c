#pragma once

#include <QFrame>

// The magnetic switch page of a native device: travel, rapid trigger, dead zones, switch types
// and tests. The shell creates it with the other pages; its controls come with the travel
// settings.
class FrameMagic : public QFrame
{
    Q_OBJECT

public:
    explicit FrameMagic(QWidget* parent = nullptr);
};
