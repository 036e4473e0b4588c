#pragma once

#include <QByteArray>
#include <QColor>
#include <QFrame>
#include <QImage>
#include <QRandomGenerator>
#include <QSet>
#include <memory>

class Clock;
class DialogColorPicker;
class DialogDeviceConnect;
class LightWorkStore;
class ModuleKeyboard;
class QButtonGroup;
class QLabel;
class QGridLayout;
class QLineEdit;
class QModelIndex;
class QPushButton;
class QStackedWidget;
class QStandardItemModel;
class QTableView;
class ToggleButton;
struct LightWork;

// The light page: the user paints keys on the on-screen keyboard, writes the picture to one of
// the keyboard's five picture layers, reads a layer back, and keeps paintings as named works in
// the works library ("ledwork.json"). The colour map holds three bytes (red, green, blue) per
// key position; nothing goes to the keyboard until a layer is chosen.
class FrameLight : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kMapSize = 500; // the map of a new page; the keyboard takes 392
    static constexpr int kKeyPositions = 128;
    static constexpr int kLayers = 5;
    static constexpr int kMapRole = Qt::UserRole + 2; // 258, beside the preview's 257
    static constexpr int kRowHeight = 80;
    static constexpr int kManageColumn = 2;

    // worksFolder: where the works library lives (made if missing). clock paces the effect
    // panel's side light and the picker; null means real time.
    FrameLight(DialogDeviceConnect* device, const QString& worksFolder, Clock* clock = nullptr,
               QWidget* parent = nullptr);
    ~FrameLight() override;

    QByteArray colorMap() const { return map; }
    QColor currentColor() const { return color; }
    // The row of the works table last clicked, -1 for none.
    int selectedRow() const { return selected; }
    QString worksFolder() const { return folder; }
    ModuleKeyboard* keyboard() const { return frameKeyboard; }
    DialogColorPicker* picker() const { return dialogPicker; }
    QStandardItemModel* worksModel() const { return model; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // FrameLightForm.cpp
    void buildForm(Clock* clock);
    QWidget* buildEffectPage(Clock* clock);
    QWidget* buildWorksPage();
    QWidget* buildWorksCard(QWidget* parent);
    QWidget* buildBrushCard(QWidget* parent);
    // A row of the five layers under a title, at a row of the grid.
    QButtonGroup* buildLayerRow(QGridLayout* grid, int row, QLabel* title, const char* name,
                                const char* prefix);
    void retranslate();

    void paintKey(uchar code);
    void paintDraggedKeys();
    void onPickupColor(const QColor& picked);
    void showCurrentColor();
    void onGetPictrue(const QByteArray& data);
    void takeMap(const QByteArray& data);
    void showMap();
    void clearMap();

    void loadWorks();
    void appendRow(const LightWork& work);
    void writeWorks();
    QString grabPreview();
    void saveWork();
    void updateWork();
    void onTableClicked(const QModelIndex& index);
    void deleteRow(int row);

    DialogDeviceConnect* device;
    QByteArray map;
    QColor color{0, 220, 0};
    DialogColorPicker* dialogPicker = nullptr;
    QStandardItemModel* model = nullptr;
    int selected = -1;
    QString folder;
    std::unique_ptr<LightWorkStore> store;
    QImage lastGrab; // the keyboard as the last save or update saw it
    QRandomGenerator random;
    bool dragging = false;     // a rubber band is being drawn over the keys
    QSet<quint8> draggedCodes; // painted by the band in progress, each once

    ModuleKeyboard* frameKeyboard = nullptr;
    QStackedWidget* stackedWidgetB = nullptr;
    QTableView* tableView = nullptr;
    QLabel* labelTitle1 = nullptr;
    QLabel* labelHint = nullptr;
    QLabel* labelTitle2 = nullptr;
    QLabel* labelColor = nullptr;
    QLabel* labelTitle3 = nullptr;
    QLabel* labelPickup = nullptr;
    QLabel* labelTitle4 = nullptr;
    ToggleButton* checkBoxRam = nullptr;
    QPushButton* pushButtonReset = nullptr;
    QLabel* labelTitle5 = nullptr;
    QButtonGroup* buttonGroupWrite = nullptr;
    QLabel* labelTitle6 = nullptr;
    QButtonGroup* buttonGroupRead = nullptr;
    QLabel* labelName = nullptr;
    QLineEdit* lineEditName = nullptr;
    QString defaultName; // the name the page proposed, replaced when the language changes
    QPushButton* pushButtonUpdate = nullptr;
    QPushButton* pushButtonSave = nullptr;
};
