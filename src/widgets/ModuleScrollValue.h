#pragma once

#include <QFrame>
#include <QStringList>
#include <memory>

namespace Ui {
class ModuleScrollValue;
}
class QLabel;

// A wheel of values: five texts of a list turning past a centre slot. The wheel turns it, a
// click on a text above or below the centre brings that text to the centre.
class ModuleScrollValue : public QFrame
{
    Q_OBJECT

public:
    explicit ModuleScrollValue(QWidget* parent = nullptr);
    ~ModuleScrollValue() override;

    // Takes the list with its first entry in the top slot, so the centre shows entry 2 (modulo
    // the size), and signals the centre's index.
    void setValues(const QStringList& values);
    // Shows this index in the centre, without a signal.
    void setIndex(int index);
    // The index in the centre; -1 with an empty list.
    int currentIndex() const;
    QStringList values() const { return valueTexts; }

signals:
    void onIndexChanged(int index);

protected:
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Text of slot p (0 to 4, centre 2): entry (position + p) modulo the list's size.
    void refresh();
    QLabel* slotLabel(int slot) const;

    std::unique_ptr<Ui::ModuleScrollValue> ui;
    QStringList valueTexts;
    qint64 position = 0;
    qint64 index = 0;
};
