#pragma once

#include <QFrame>
#include <memory>

class Platform;

namespace Ui {
class FrameSystemInfo;
}

// The small settings dialog: whether the hub starts at log-in. Made anew for each opening and
// shown under a mask; it hides itself when the user decides, and the mask ends with the result.
class FrameSystemInfo : public QFrame
{
    Q_OBJECT

public:
    // platform must outlive the dialog.
    explicit FrameSystemInfo(Platform& platform, QWidget* parent = nullptr);
    ~FrameSystemInfo() override;

    // 1 after OK, 0 after cancel or close (and before either): the mask's result.
    int result() const { return accepted ? 1 : 0; }

signals:
    // Emitted just before the dialog hides itself.
    void decided(bool accepted);

protected:
    void changeEvent(QEvent* event) override;

private:
    void finish(bool ok);

    Platform& platform;
    std::unique_ptr<Ui::FrameSystemInfo> ui;
    bool accepted = false;
};
