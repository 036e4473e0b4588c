#pragma once

#include <QFrame>
#include <memory>

namespace Ui {
class FrameAbout;
}

// The last page of a native device: a picture, fixed texts, two firmware buttons that do
// nothing yet, and a grid of tutorial cards. It reads nothing from the keyboard.
class FrameAbout : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kVideoCards = 20;
    static constexpr int kVideoColumns = 3;
    static constexpr QSize kVideoCardSize{340, 280};

    explicit FrameAbout(QWidget* parent = nullptr);
    ~FrameAbout() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<Ui::FrameAbout> ui;
};
