#include "MainWindow.h"

#include "AppLog.h"
#include "Clock.h"
#include "DialogDeviceConnect.h"
#include "FrameSystemInfo.h"
#include "HidBackend.h"
#include "ModuleLangMenu.h"
#include "Platform.h"

#include <QDialog>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTime>
#include <QTimer>
#include <QVBoxLayout>
#include <array>

namespace {

constexpr quint16 kVendorUsagePage = 0xFFFF;

// Report rate codes on the wire, in the order the keyboard numbers them.
constexpr std::array<const char*, 7> kReportRates{
    "8000 hz", "4000 hz", "2000 hz", "1000 hz", "500 hz", "250 hz", "125 hz",
};

const char* const kStyle = R"(
MainWindow { background-color: #FFFFFF; }
QFrame#header { background-color: #6329B6; }
QLabel#titleLabel { color: #FFFFFF; font-size: 20px; font-weight: 600; }
QFrame#card { background-color: #FFFFFF; border: 1px solid #EAEAEA; border-radius: 12px; }
QLabel#stateLabel { font-size: 16px; font-weight: 600; color: #1A1A1A; }
QLabel#targetLabel, QLabel#readDoneLabel { color: #808080; }
QLabel#versionLabel { color: #6329B6; font-weight: 500; }
QLabel[role="caption"] { color: #808080; }
QLabel[role="value"] { color: #1A1A1A; font-weight: 500; }
QPushButton#reconnectButton { background-color: #6329B6; color: #FFFFFF; border: none;
    border-radius: 8px; padding: 6px 18px; font-size: 14px; }
QPushButton#reconnectButton:hover { background-color: #7A45C9; }
QPushButton#reconnectButton:pressed { background-color: #4F2092; }
QPushButton#pushButtonLang, QPushButton#pushButtonSet { background-color: transparent;
    color: #FFFFFF; border: 1px solid rgba(255, 255, 255, 0.5); border-radius: 14px;
    padding: 4px 14px; font-size: 13px; }
QPushButton#pushButtonLang:hover, QPushButton#pushButtonSet:hover {
    background-color: rgba(255, 255, 255, 0.15); }
)";

// The settings dialog's mask.
const char* const kSystemInfoMaskStyle =
    "QDialog { background-color: rgba(220, 220, 220, 0.96); border: none; border-radius: 20px; }";
constexpr QSize kLanguageMenuSize(110, 280);
constexpr int kLanguageMenuShift = 10;
constexpr int kSavedLanguageDelayMs = 10;

QLabel* makeLabel(const char* objectName, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(objectName));
    return label;
}

QString dotStyle(const char* colour)
{
    return QStringLiteral("border-radius: 6px; background-color: %1;").arg(QLatin1String(colour));
}

QString sleepText(quint16 seconds)
{
    if (seconds % 60 == 0) return QStringLiteral("%1 min").arg(seconds / 60);
    return QStringLiteral("%1 s").arg(seconds);
}

} // namespace

MainWindow::MainWindow(std::unique_ptr<HidBackend> backend, Clock* clk, QWidget* parent)
    : QWidget(parent), hid(std::move(backend)), clock(clk ? clk : QtClock::shared()),
      device(std::make_unique<DialogDeviceConnect>(hid.get(), clock))
{
    buildUi();

    DialogDeviceConnect* d = device.get();
    connect(d, &DialogDeviceConnect::onConnect, this, [this] {
        setLinkState(device->isConnected() ? LinkState::Connected : LinkState::NotOpened);
    });
    connect(d, &DialogDeviceConnect::onDisconnect, this, [this] {
        // Listed but not opened is the Linux permission case; tell it apart from absence.
        bool okVid = false;
        bool okPid = false;
        const quint16 vid = device->vidText().trimmed().toUShort(&okVid, 16);
        const quint16 pid = device->pidText().trimmed().toUShort(&okPid, 16);
        bool listed = false;
        if (okVid && okPid)
            for (const HidDeviceInfo& e : hid->enumerate(vid, pid))
                listed = listed || e.usagePage == kVendorUsagePage;
        setLinkState(listed ? LinkState::NotOpened : LinkState::NotFound);
    });
    connect(d, &DialogDeviceConnect::versionTextChanged, this, [this](const QString& text) {
        versionLabel->setText(text);
        // Taken now: the connection's own version field reads 0 once a read sequence began.
        reportedVersion = device->GetFirmwareVersion();
        reportedId = device->GetDeviceId();
        identityKnown = true;
        refreshValues();
    });
    // What the device page's layer buttons do: select the profile, which reads it whole.
    connect(d, &DialogDeviceConnect::onUpdataLayer, this,
            [this](int layer) { device->DoSetProfile(static_cast<quint8>(layer)); });
    connect(d, &DialogDeviceConnect::onReadAll, this, &MainWindow::onReadAllStarted);
    connect(d, &DialogDeviceConnect::onReadDone, this, &MainWindow::onReadFinished);
    connect(reconnectButton, &QPushButton::clicked, this, &MainWindow::connectKeyboard);

    langMenu = new ModuleLangMenu(this);
    connect(langMenu, &ModuleLangMenu::onLangChanged, this, &MainWindow::applyLanguage);
    connect(langButton, &QPushButton::clicked, this, &MainWindow::showLanguageMenu);
    connect(setButton, &QPushButton::clicked, this, &MainWindow::openSystemInfo);
    QTimer::singleShot(kSavedLanguageDelayMs, this, &MainWindow::selectSavedLanguage);

    retranslateUi();
    connectKeyboard();
}

MainWindow::~MainWindow()
{
    // The connection closes its handles through the backend, so it goes first.
    device.reset();
}

void MainWindow::buildUi()
{
    setObjectName(QStringLiteral("MainWindow"));
    setAttribute(Qt::WA_StyledBackground, true);
    setStyleSheet(QLatin1String(kStyle));
    setMinimumSize(560, 520);
    resize(640, 580);

    auto* header = new QFrame(this);
    header->setObjectName(QStringLiteral("header"));
    header->setFixedHeight(64);
    auto* headerLayout = new QHBoxLayout(header);
    headerLayout->setContentsMargins(24, 0, 24, 0);
    titleLabel = makeLabel("titleLabel", header);
    headerLayout->addWidget(titleLabel);
    headerLayout->addStretch();
    langButton = new QPushButton(header);
    langButton->setObjectName(QStringLiteral("pushButtonLang"));
    setButton = new QPushButton(header);
    setButton->setObjectName(QStringLiteral("pushButtonSet"));
    for (QPushButton* button : {langButton, setButton}) {
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        headerLayout->addWidget(button);
    }

    auto* card = new QFrame(this);
    card->setObjectName(QStringLiteral("card"));
    auto* cardLayout = new QVBoxLayout(card);
    cardLayout->setContentsMargins(24, 20, 24, 20);
    cardLayout->setSpacing(10);

    auto* stateLine = new QHBoxLayout();
    stateDot = makeLabel("stateDot", card);
    stateDot->setFixedSize(12, 12);
    stateLabel = makeLabel("stateLabel", card);
    reconnectButton = new QPushButton(card);
    reconnectButton->setObjectName(QStringLiteral("reconnectButton"));
    reconnectButton->setCursor(Qt::PointingHandCursor);
    reconnectButton->setFocusPolicy(Qt::NoFocus);
    stateLine->addWidget(stateDot);
    stateLine->addSpacing(8);
    stateLine->addWidget(stateLabel, 1);
    stateLine->addWidget(reconnectButton);
    cardLayout->addLayout(stateLine);

    targetLabel = makeLabel("targetLabel", card);
    versionLabel = makeLabel("versionLabel", card);
    versionLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    readDoneLabel = makeLabel("readDoneLabel", card);
    cardLayout->addWidget(targetLabel);
    cardLayout->addWidget(versionLabel);
    cardLayout->addWidget(readDoneLabel);

    auto* separator = new QFrame(card);
    separator->setFixedHeight(1);
    separator->setStyleSheet(QStringLiteral("background-color: #EAEAEA; border: none;"));
    cardLayout->addSpacing(4);
    cardLayout->addWidget(separator);
    cardLayout->addSpacing(4);

    auto* grid = new QGridLayout();
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(1, 1);
    int line = 0;
    auto addRow = [&](Row& row, const QString& name) {
        row.caption = new QLabel(card);
        row.caption->setProperty("role", "caption");
        row.value = new QLabel(card);
        row.value->setObjectName(name);
        row.value->setProperty("role", "value");
        row.value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        grid->addWidget(row.caption, line, 0);
        grid->addWidget(row.value, line, 1);
        ++line;
    };
    addRow(deviceIdRow, QStringLiteral("deviceIdValue"));
    addRow(firmwareRow, QStringLiteral("firmwareValue"));
    addRow(profileRow, QStringLiteral("profileValue"));
    addRow(reportRateRow, QStringLiteral("reportRateValue"));
    addRow(debounceRow, QStringLiteral("debounceValue"));
    for (int i = 0; i < 4; ++i)
        addRow(sleepRows[i], QStringLiteral("sleepValue%1").arg(i));
    cardLayout->addLayout(grid);
    cardLayout->addStretch();

    auto* body = new QVBoxLayout();
    body->setContentsMargins(24, 24, 24, 24);
    body->addWidget(card);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header);
    layout->addLayout(body, 1);
}

void MainWindow::retranslateUi()
{
    setWindowTitle(QStringLiteral("OrbeHub"));
    titleLabel->setText(QStringLiteral("OrbeHub"));
    reconnectButton->setText(tr("重新连接"));
    langButton->setText(language.languageText());
    setButton->setText(tr("设置"));
    deviceIdRow.caption->setText(tr("设备 ID"));
    firmwareRow.caption->setText(tr("固件版本"));
    profileRow.caption->setText(tr("板载配置"));
    reportRateRow.caption->setText(tr("键盘回报率"));
    debounceRow.caption->setText(tr("按键防抖等级"));
    // Sleep slots in the keyboard's order.
    sleepRows[0].caption->setText(tr("蓝牙关闭背光"));
    sleepRows[1].caption->setText(tr("2.4G关闭背光"));
    sleepRows[2].caption->setText(tr("蓝牙深度睡眠时间"));
    sleepRows[3].caption->setText(tr("2.4G深度睡眠时间"));
    showLinkState();
    refreshValues();
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslateUi();
    QWidget::changeEvent(event);
}

void MainWindow::connectKeyboard()
{
    setLinkState(LinkState::Searching);
    qCDebug(lcApp) << "connecting to" << device->vidText() << device->pidText();
    device->connectStep();
}

void MainWindow::setLinkState(LinkState state)
{
    linkState = state;
    showLinkState();
}

void MainWindow::showLinkState()
{
    targetLabel->setText(
        tr("键盘 VID %1 PID %2").arg(device->vidText().trimmed(), device->pidText().trimmed()));
    if (versionLabel->text().isEmpty()) versionLabel->setText(device->versionText());

    const char* colour = "#B3B3B3";
    switch (linkState) {
    case LinkState::Searching:
        stateLabel->setText(tr("正在查找键盘…"));
        break;
    case LinkState::NotFound:
        stateLabel->setText(tr("未找到键盘"));
        colour = "#D9534F";
        break;
    case LinkState::NotOpened:
        stateLabel->setText(tr("已找到键盘，但无法打开（权限不足？）"));
        colour = "#F0AD4E";
        break;
    case LinkState::Connected:
        stateLabel->setText(tr("已连接"));
        colour = "#3CB371";
        break;
    case LinkState::Reading:
        stateLabel->setText(tr("正在读取键盘数据…"));
        colour = "#6329B6";
        break;
    }
    stateDot->setStyleSheet(dotStyle(colour));
    reconnectButton->setEnabled(linkState != LinkState::Reading);

    if (lastReadTime.isEmpty())
        readDoneLabel->setText(tr("尚未读取键盘数据"));
    else
        readDoneLabel->setText(tr("读取完成：%1（用时 %2 秒）")
                                   .arg(lastReadTime)
                                   .arg(double(lastReadMs) / 1000.0, 0, 'f', 2));
}

void MainWindow::refreshValues()
{
    const QString none = QStringLiteral("—");
    deviceIdRow.value->setText(
        identityKnown ? QString::asprintf("%u (0x%03X)", reportedId, reportedId) : none);
    firmwareRow.value->setText(identityKnown ? QString::asprintf("0x%03X", reportedVersion) : none);

    const bool read = !lastReadTime.isEmpty();
    profileRow.value->setText(read ? QString::number(device->GetCurrentProfile() + 1) : none);
    const quint8 rate = device->GetReportRate();
    reportRateRow.value->setText(!read                        ? none
                                 : rate < kReportRates.size() ? QLatin1String(kReportRates[rate])
                                                              : tr("未知（%1）").arg(rate));
    debounceRow.value->setText(read ? QString::number(device->GetDebounce()) : none);
    const auto& sleep = device->GetSleepTimes();
    for (int i = 0; i < 4; ++i)
        sleepRows[i].value->setText(read ? sleepText(sleep[i]) : none);
}

void MainWindow::onReadAllStarted()
{
    readStartedMs = clock->elapsedMs();
    setLinkState(LinkState::Reading);
}

void MainWindow::onReadFinished()
{
    lastReadMs = readStartedMs >= 0 ? clock->elapsedMs() - readStartedMs : 0;
    lastReadTime = QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
    qCDebug(lcApp) << "read done after" << lastReadMs << "ms";
    setLinkState(device->isConnected() ? LinkState::Connected : LinkState::NotOpened);
    refreshValues();
}

void MainWindow::applyLanguage(int index, const QString& text)
{
    language.setTranslators(appTranslator, qtBaseTranslator, qtTranslator);
    language.apply(index, text);
    langButton->setText(language.languageText());
}

void MainWindow::selectSavedLanguage()
{
    // No default on purpose: a first run comes up in language 0 whatever the system's locale.
    langMenu->selectLanguage(Platform::instance().userValue(QStringLiteral("lastlang")).toInt());
}

void MainWindow::showLanguageMenu()
{
    if (!langMenu->isHidden()) return;
    langMenu->move(langButton->mapToGlobal(QPoint(kLanguageMenuShift, langButton->height())));
    langMenu->resize(kLanguageMenuSize);
    langMenu->show();
}

void MainWindow::openSystemInfo()
{
    langMenu->hide();
    QDialog mask(this);
    mask.setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    mask.setAttribute(Qt::WA_TranslucentBackground);
    mask.setStyleSheet(QLatin1String(kSystemInfoMaskStyle));
    auto* layout = new QVBoxLayout(&mask);
    // Made for this opening alone, without a parent of its own.
    auto* info = new FrameSystemInfo();
    layout->addWidget(info, 0, Qt::AlignCenter);
    connect(info, &FrameSystemInfo::decided, &mask,
            [&mask](bool accepted) { accepted ? mask.accept() : mask.reject(); });
    mask.setGeometry(geometry());
    mask.exec();
    layout->removeWidget(info);
    info->setParent(nullptr);
    info->deleteLater();
}
