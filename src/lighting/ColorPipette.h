#pragma once

#include <QDialog>
#include <QImage>

// The round window that follows the pointer while the screen pipette runs. It is fully
// transparent, so the user sees only the pipette cursor; it paints the pixel under the pointer
// for platforms that ignore the opacity.
class ColorPipette : public QDialog
{
    Q_OBJECT

public:
    static constexpr int kSize = 64;

    explicit ColorPipette(QWidget* parent = nullptr);

    // The picture of the pixel under the pointer; null before the first grab.
    void setSample(const QImage& sample);
    const QImage& sample() const { return m_sample; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_sample;
};
