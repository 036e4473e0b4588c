#pragma once

#include <QDialog>

class ConsoleTableModel;
class DialogDeviceConnect;
class Platform;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QModelIndex;
class QPlainTextEdit;
class QPushButton;
class QTableView;

// The engineering console: the protocol's debug view on the one connection, opened by a
// double click on the logo with Ctrl and D held. It shows what the connection's console model
// holds (the command rows, the log, the ids and the product ids found, the lamps, the version)
// and hands every action to the connection; it keeps no state of its own.
class DialogDeviceConsole : public QDialog
{
    Q_OBJECT

public:
    static constexpr QSize kSize{1280, 756};

    DialogDeviceConsole(DialogDeviceConnect* connection, Platform& platform,
                        QWidget* parent = nullptr);

    DialogDeviceConnect* connection() const { return link; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildForm();
    void retranslate();
    void connectModel();
    void cellClicked(const QModelIndex& index);
    void cellDoubleClicked(const QModelIndex& index);
    void contextRequested(const QPoint& at);
    void showIds();
    void showPidList();
    void showLamps(bool inputOk, bool commandOk);
    void showLog();
    void setOnTop(bool onTop);

    DialogDeviceConnect* link;
    Platform& platform;
    ConsoleTableModel* model = nullptr;

    QLineEdit* lineEditCmd = nullptr;
    QPushButton* pushButtonRead = nullptr;
    QPlainTextEdit* plainTextEdit = nullptr;
    QPushButton* pushButtonWrite = nullptr;
    QLineEdit* lineEditVID = nullptr;
    QPushButton* pushButtonRefresh = nullptr;
    QLabel* label = nullptr;
    QLabel* labelFlag0 = nullptr;
    QLabel* labelFlag1 = nullptr;
    QLabel* label_2 = nullptr;
    QLineEdit* lineEditPID = nullptr;
    QLabel* label_4 = nullptr;
    QCheckBox* checkBoxOntop = nullptr;
    QTableView* tableView = nullptr;
    QComboBox* comboBoxPID = nullptr;
    QPushButton* pushButtonConnect = nullptr;
    QPushButton* pushButtonSaveMatrix = nullptr;
    QLabel* labelVersion = nullptr;
};
