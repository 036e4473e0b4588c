#pragma once

#include <QFrame>
#include <QString>

class QLineEdit;
class QPushButton;
struct Macro;

// One row of the macro page's list: the macro's name, with buttons to rename and delete it.
// A click selects the row's macro. The page does the work: the row only says what was asked.
class MacroItem : public QFrame
{
    Q_OBJECT

public:
    enum Operation { Select = 0, Delete = 1, Rename = 2 };

    MacroItem(Macro* macro, QWidget* parent = nullptr);

    Macro* macro() const { return m_macro; }
    // The name as the row shows it (a rename's new name once it is confirmed).
    QString text() const;
    void setSelected(bool selected);
    bool isSelected() const { return m_selected; }
    // Opens the name for editing; Enter or leaving the field confirms, Escape restores it.
    void beginRename();

signals:
    void onOperation(int operation, QWidget* from);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void endRename(bool keep);
    void retranslate();

    Macro* m_macro;
    bool m_selected = false;
    QString shownName; // the name before an edit began
    QLineEdit* lineEditName;
    QPushButton* pushButtonRename;
    QPushButton* pushButtonDel;
};
