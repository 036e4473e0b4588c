#pragma once

#include <QFrame>
#include <QPointer>
#include <QString>

class QLabel;
class QPushButton;
class QSpinBox;

// One event of the open macro on the macro page: an action square (a key or mouse button, a
// press or a release, or a mouse position) or the delay square that follows every action.
// Squares are kept in a cache and reused as the page rebuilds its grid.
class MacroSquare : public QFrame
{
    Q_OBJECT

public:
    static constexpr QSize kActionSize{62, 62};
    static constexpr QSize kDelaySize{56, 56};
    static constexpr int kMinDelay = 5;
    static constexpr int kMaxDelay = 65535;
    static constexpr int kMaxPosition = 127;

    // What the pop-up buttons ask of the page.
    enum Action : uchar { InsertHere = 0, DeleteThis = 2 };

    // A square from the cache, under parent: the first one not in use, or a new one.
    static MacroSquare* acquire(QWidget* parent);
    // Hides the square and returns it to the cache.
    void release();

    // The event it shows; the text is the label of a key (already cut by the page).
    void setEvent(quint8 type, bool down, quint16 value, const QString& text);
    void setValue(quint16 value);
    quint8 type() const { return m_type; }
    bool down() const { return m_down; }
    quint16 value() const { return m_value; }
    QString text() const { return m_text; }
    // The word of a mouse button code (F0 left, F1 right, F2 middle); empty for another.
    static QString buttonWord(quint16 code);
    // What the square shows, as it shows it (two lines for a position).
    QString shownText() const;

    bool isSelected() const { return m_selected; }
    void setSelected(bool selected);
    // The square pressed last, on any page; null when it is gone.
    static MacroSquare* lastPressed();

    // Shows the spin box(es) in place of the label: a delay's or a position's.
    void beginEdit();
    bool isEditing() const;

signals:
    void onAction(MacroSquare* from, uchar action);
    // A delay or a position took a new value from its spin box.
    void valueEdited(MacroSquare* from);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit MacroSquare(QWidget* parent);
    void refresh();
    void endEdit();
    void showPopups(bool show);
    QSpinBox* makeSpin(int minimum, int maximum);

    quint8 m_type = 0;
    bool m_down = false;
    quint16 m_value = 0;
    QString m_text;
    int m_spinX = 0; // the position's spin values, as they were last shown
    int m_spinY = 0;
    bool m_selected = false;
    bool m_inUse = false;
    QString polishedLook; // the style properties the square was last polished with

    QLabel* label;
    QSpinBox* spinFirst;  // a delay's value, or a position's X
    QSpinBox* spinSecond; // a position's Y
    QPushButton* pushButtonInsertHere;
    QPushButton* pushButtonDeleteThis;
};
