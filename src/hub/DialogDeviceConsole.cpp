#include "DialogDeviceConsole.h"

#include "CommandCatalogue.h"
#include "ConsoleModel.h"
#include "ConsoleTableModel.h"
#include "DialogDeviceConnect.h"
#include "Platform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

namespace {

const char* const kFixedFont = "font-family: Fixedsys;";
const char* const kLampOff = ":/images/General_NG4.png";
const char* const kLampOn = ":/images/General_OK4.png";
const char* const kConsoleStyle =
    "QDialog { background: #F4F6FA; }"
    "QPushButton { background: #6329B6; color: white; border: none; border-radius: 6px;"
    " padding: 5px 14px; min-height: 20px; }"
    "QPushButton:hover { background: #7A45CC; } QPushButton:pressed { background: #4E1F92; }"
    "QLineEdit, QComboBox, QPlainTextEdit { background: white; border: 1px solid #C9CFDB;"
    " border-radius: 5px; padding: 3px; }"
    "QTableView { background: white; border: 1px solid #C9CFDB; gridline-color: #E3E6EE; }"
    "QHeaderView::section { background: #E9ECF3; border: none; border-right: 1px solid #D5D9E3;"
    " padding: 2px; }";

// Fixed widths of the name, command and Byte3 columns.
constexpr int kNameWidth = 165;
constexpr int kNarrowFixedWidth = 90;
constexpr int kLedOnOffFirst = ConsoleTableModel::kFirstByteColumn;         // Byte1
constexpr int kLedOnOffLast = ConsoleTableModel::kFirstByteColumn + 1;      // Byte2
constexpr int kLastSendingColumn = ConsoleTableModel::kFirstByteColumn - 1; // the command
constexpr int kLogColumnWidth = 420;

} // namespace

DialogDeviceConsole::DialogDeviceConsole(DialogDeviceConnect* connection, Platform& system,
                                         QWidget* parent)
    : QDialog(parent), link(connection), platform(system)
{
    setObjectName(QStringLiteral("DialogDeviceConnect"));
    resize(kSize);
    setStyleSheet(QLatin1String(kConsoleStyle));
    buildForm();
    retranslate();
    connectModel();
}

void DialogDeviceConsole::buildForm()
{
    auto make = [this](auto* widget, const char* name) {
        widget->setObjectName(QLatin1String(name));
        return widget;
    };
    lineEditCmd = make(new QLineEdit(this), "lineEditCmd");
    pushButtonRead = make(new QPushButton(this), "pushButtonRead");
    plainTextEdit = make(new QPlainTextEdit(this), "plainTextEdit");
    pushButtonWrite = make(new QPushButton(this), "pushButtonWrite");
    lineEditVID = make(new QLineEdit(this), "lineEditVID");
    pushButtonRefresh = make(new QPushButton(this), "pushButtonRefresh");
    label = make(new QLabel(this), "label");
    labelFlag0 = make(new QLabel(this), "labelFlag0");
    labelFlag1 = make(new QLabel(this), "labelFlag1");
    label_2 = make(new QLabel(this), "label_2");
    lineEditPID = make(new QLineEdit(this), "lineEditPID");
    label_4 = make(new QLabel(this), "label_4");
    checkBoxOntop = make(new QCheckBox(this), "checkBoxOntop");
    tableView = make(new QTableView(this), "tableView");
    comboBoxPID = make(new QComboBox(this), "comboBoxPID");
    pushButtonConnect = make(new QPushButton(this), "pushButtonConnect");
    pushButtonSaveMatrix = make(new QPushButton(this), "pushButtonSaveMatrix");
    labelVersion = make(new QLabel(this), "labelVersion");

    for (QWidget* w :
         std::initializer_list<QWidget*>{lineEditCmd, lineEditVID, lineEditPID, plainTextEdit})
        w->setStyleSheet(QLatin1String(kFixedFont));
    lineEditVID->setFixedWidth(70);
    lineEditPID->setFixedWidth(70);
    comboBoxPID->setMinimumWidth(90);
    labelVersion->setMinimumWidth(200);
    plainTextEdit->setReadOnly(true);
    plainTextEdit->setMaximumBlockCount(ConsoleModel::kLogKeptLines);
    plainTextEdit->setFixedWidth(kLogColumnWidth);
    for (QLabel* lamp : {labelFlag0, labelFlag1}) {
        lamp->setFixedSize(20, 20);
        lamp->setScaledContents(true);
    }

    model = new ConsoleTableModel(link->console().rows(), this);
    tableView->setModel(model);
    tableView->setContextMenuPolicy(Qt::CustomContextMenu);
    tableView->setEditTriggers(QAbstractItemView::DoubleClicked |
                               QAbstractItemView::EditKeyPressed);
    tableView->verticalHeader()->setDefaultSectionSize(ConsoleTableModel::kRowHeight);
    tableView->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* header = tableView->horizontalHeader();
    header->setDefaultAlignment(Qt::AlignCenter);
    header->setMinimumHeight(40);
    header->setStretchLastSection(true);
    for (const auto& [column, width] : {std::pair{0, kNameWidth}, std::pair{2, kNarrowFixedWidth},
                                        std::pair{5, kNarrowFixedWidth}}) {
        header->setSectionResizeMode(column, QHeaderView::Fixed);
        header->resizeSection(column, width);
    }

    auto* ids = new QHBoxLayout;
    ids->setSpacing(8);
    for (QWidget* w : std::initializer_list<QWidget*>{
             label, lineEditVID, label_4, lineEditPID, comboBoxPID, pushButtonRefresh,
             pushButtonConnect, label_2, labelFlag0, labelFlag1})
        ids->addWidget(w);
    ids->addSpacing(16);
    ids->addWidget(labelVersion);
    ids->addStretch(1);
    ids->addWidget(checkBoxOntop);
    ids->addWidget(pushButtonSaveMatrix);

    auto* middle = new QHBoxLayout;
    middle->addWidget(tableView, 1);
    middle->addWidget(plainTextEdit);

    auto* command = new QHBoxLayout;
    command->addWidget(lineEditCmd, 1);
    command->addWidget(pushButtonWrite);
    command->addWidget(pushButtonRead);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 14, 14, 14);
    layout->setSpacing(10);
    layout->addLayout(ids);
    layout->addLayout(middle, 1);
    layout->addLayout(command);
}

void DialogDeviceConsole::retranslate()
{
    setWindowTitle(tr("Orbe Studio 设备调试"));
    pushButtonRead->setText(QStringLiteral("Read"));
    pushButtonWrite->setText(QStringLiteral("Write"));
    pushButtonRefresh->setText(QStringLiteral("Refresh"));
    label->setText(QStringLiteral("VID:"));
    label_2->setText(QStringLiteral("Status:"));
    label_4->setText(QStringLiteral("PID:"));
    checkBoxOntop->setText(QStringLiteral("ON TOP"));
    pushButtonConnect->setText(QStringLiteral("Connect"));
    pushButtonSaveMatrix->setText(QStringLiteral("Save Matrix"));
    model->retranslate();
}

void DialogDeviceConsole::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QDialog::changeEvent(event);
}

void DialogDeviceConsole::connectModel()
{
    ConsoleModel& console = link->console();
    connect(&console, &ConsoleModel::rowChanged, model, &ConsoleTableModel::rowChangedInStore);

    lineEditCmd->setText(console.commandLine());
    connect(&console, &ConsoleModel::commandLineChanged, lineEditCmd, [this](const QString& text) {
        if (lineEditCmd->text() != text) lineEditCmd->setText(text);
    });
    connect(lineEditCmd, &QLineEdit::textEdited, &console, &ConsoleModel::setCommandLine);
    connect(pushButtonWrite, &QPushButton::clicked, link, &DialogDeviceConnect::writeCommandLine);
    connect(pushButtonRead, &QPushButton::clicked, link, &DialogDeviceConnect::readStep);

    showIds();
    showPidList();
    connect(&console, &ConsoleModel::idsChanged, this, &DialogDeviceConsole::showIds);
    connect(&console, &ConsoleModel::pidListChanged, this, &DialogDeviceConsole::showPidList);
    connect(lineEditVID, &QLineEdit::textEdited, &console, &ConsoleModel::setVidText);
    connect(lineEditPID, &QLineEdit::textEdited, &console, &ConsoleModel::setPidText);
    connect(comboBoxPID, &QComboBox::currentTextChanged, link, &DialogDeviceConnect::selectPid);
    connect(pushButtonRefresh, &QPushButton::clicked, link, &DialogDeviceConnect::refreshStep);
    connect(pushButtonConnect, &QPushButton::clicked, link, &DialogDeviceConnect::connectStep);

    showLamps(console.inputLampOk(), console.commandLampOk());
    connect(&console, &ConsoleModel::lampsChanged, this, &DialogDeviceConsole::showLamps);
    labelVersion->setText(console.versionText());
    connect(&console, &ConsoleModel::versionTextChanged, labelVersion, &QLabel::setText);

    showLog();
    connect(&console, &ConsoleModel::logCleared, plainTextEdit, &QPlainTextEdit::clear);
    connect(&console, &ConsoleModel::logLine, plainTextEdit,
            [this](const QString& text, bool lineEnd) {
                plainTextEdit->appendPlainText(text);
                if (lineEnd) plainTextEdit->appendPlainText(QString());
            });

    connect(tableView, &QTableView::clicked, this, &DialogDeviceConsole::cellClicked);
    connect(tableView, &QTableView::doubleClicked, this, &DialogDeviceConsole::cellDoubleClicked);
    connect(tableView, &QTableView::customContextMenuRequested, this,
            &DialogDeviceConsole::contextRequested);
    connect(checkBoxOntop, &QCheckBox::toggled, this, &DialogDeviceConsole::setOnTop);
    connect(pushButtonSaveMatrix, &QPushButton::clicked, link, &DialogDeviceConnect::SaveMatrix);
}

void DialogDeviceConsole::cellClicked(const QModelIndex& index)
{
    if (!index.isValid()) return;
    const int row = index.row();
    ConsoleRows& rows = link->console().rows();
    const int column = index.column();
    // The LED switch row's two cells are switches: a click flips them.
    if (rows.row(row).command == CommandCatalogue::CMD_SET_LEDONOFF && column >= kLedOnOffFirst &&
        column <= kLedOnOffLast) {
        const int byteIndex = column - kLastSendingColumn;
        rows.setCell(row, byteIndex, rows.cell(row, byteIndex) == 0 ? 1 : 0);
        return;
    }
    link->BuildRowCommand(row, false);
}

void DialogDeviceConsole::cellDoubleClicked(const QModelIndex& index)
{
    // The byte cells open their editor instead.
    if (index.isValid() && index.column() <= kLastSendingColumn)
        link->BuildRowCommand(index.row(), true);
}

void DialogDeviceConsole::contextRequested(const QPoint& at)
{
    cellDoubleClicked(tableView->indexAt(at));
}

void DialogDeviceConsole::showIds()
{
    const ConsoleModel& console = link->console();
    if (lineEditVID->text() != console.vidText()) lineEditVID->setText(console.vidText());
    if (lineEditPID->text() != console.pidText()) lineEditPID->setText(console.pidText());
}

void DialogDeviceConsole::showPidList()
{
    // Filled without signals: the list's selection is not a choice by hand.
    const QSignalBlocker blocker(comboBoxPID);
    comboBoxPID->clear();
    comboBoxPID->addItems(link->console().pidList());
    comboBoxPID->setCurrentIndex(link->console().pidListIndex());
}

void DialogDeviceConsole::showLamps(bool inputOk, bool commandOk)
{
    labelFlag0->setPixmap(QPixmap(QLatin1String(inputOk ? kLampOn : kLampOff)));
    labelFlag1->setPixmap(QPixmap(QLatin1String(commandOk ? kLampOn : kLampOff)));
}

void DialogDeviceConsole::showLog()
{
    plainTextEdit->clear();
    for (const QString& line : link->console().logLines())
        plainTextEdit->appendPlainText(line);
}

void DialogDeviceConsole::setOnTop(bool onTop)
{
    platform.setWindowPos(winId(), onTop ? Platform::ZOrder::TopMost : Platform::ZOrder::NoTopMost,
                          {}, Platform::NoMove | Platform::NoSize);
}
