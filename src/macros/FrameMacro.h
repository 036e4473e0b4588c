#pragma once

#include <QFrame>

// The macro page of a native device. The shell creates it with the other pages; the editor
// comes with the macro editing.
class FrameMacro : public QFrame
{
    Q_OBJECT

public:
    explicit FrameMacro(QWidget* parent = nullptr);
};
