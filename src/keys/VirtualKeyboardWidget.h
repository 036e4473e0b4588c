#pragma once

#include <QFrame>

class QButtonGroup;

// The simulator's firmware model is also called VirtualKeyboard; the widget keeps the name in a
// namespace of its own.
namespace KeyWidgets {

// A larger key field: 101 keys in a scroll area, five to a row, in the order of their usage
// codes. No page builds it yet; it has no logic beyond its layout.
class VirtualKeyboard : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kKeyCount = 101;
    static constexpr int kFirstCode = 4; // "A"
    static constexpr int kColumns = 5;

    explicit VirtualKeyboard(QWidget* parent = nullptr);

    QButtonGroup* group() const { return buttonGroup; }

private:
    QButtonGroup* buttonGroup;
};

} // namespace KeyWidgets
