#pragma once

#include <QColor>
#include <QList>
#include <QWidget>

class QButtonGroup;
class QLabel;

// The switch type page of the magnetic page (page2): eight switch types as icon buttons, one
// chosen at a time. The magnetic page paints and writes the chosen type on every key clicked
// while this page shows; there is no apply button.
class MagicSwitchPage : public QWidget
{
    Q_OBJECT

public:
    explicit MagicSwitchPage(QWidget* parent = nullptr);

    QButtonGroup* group() const { return buttonGroupMT; }

signals:
    // A type button was clicked: the id it writes and the colour its keys show.
    void typeChosen(quint8 id, const QColor& colour);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* buildButtons();
    QWidget* buildLegend();
    void retranslate();
    void onTypeClicked(int groupId);

    QLabel* labelTitle1 = nullptr;
    QLabel* label_16 = nullptr;
    QButtonGroup* buttonGroupMT = nullptr;
    QList<QLabel*> names;
    QList<QLabel*> legendNames; // every type the keyboard knows, by the colour its keys show
};
