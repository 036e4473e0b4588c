#include "FrameLight.h"

#include "DialogColorPicker.h"
#include "DialogDeviceConnect.h"
#include "KeyPositions.h"
#include "KeyboardButton.h"
#include "LightLog.h"
#include "LightWorkStore.h"
#include "ModuleKeyboard.h"
#include "PictureDelegate.h"
#include "ToggleButton.h"

#include <QBuffer>
#include <QButtonGroup>
#include <QDateTime>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>

namespace {

const char* const kColorStyle =
    "background-color: rgb(%1, %2, %3);border: none; border-radius:16px;";
constexpr int kChannels = 3;

// Automatic group ids run from -2 down: -2 is the first layer.
quint8 layerOf(int id)
{
    return quint8(qAbs(id) - 2);
}

quint8 byteAt(const QByteArray& data, qsizetype index)
{
    return index < data.size() ? quint8(data.at(index)) : 0;
}

} // namespace

FrameLight::FrameLight(DialogDeviceConnect* deviceIn, const QString& worksFolder, Clock* clock,
                       QWidget* parent)
    : QFrame(parent), device(deviceIn), map(kMapSize, '\0'), folder(worksFolder),
      store(std::make_unique<LightWorkStore>(worksFolder)),
      random(quint32(QDateTime::currentMSecsSinceEpoch()))
{
    setObjectName(QStringLiteral("FrameLight"));
    buildForm(clock);
    showCurrentColor();
    frameKeyboard->setKeyColor(ModuleKeyboard::kAllKeys, Qt::black);
    loadWorks();

    connect(frameKeyboard, &ModuleKeyboard::onKeyClicked, this,
            [this](const QString&, uchar code) { paintKey(code); });
    connect(frameKeyboard, &ModuleKeyboard::onSelect, this, &FrameLight::paintDraggedKeys);
    connect(dialogPicker, &DialogColorPicker::onPickupColor, this, &FrameLight::onPickupColor);
    connect(pushButtonReset, &QPushButton::clicked, this, &FrameLight::clearMap);
    // No write button: choosing a layer writes it, and choosing it again writes again.
    connect(buttonGroupWrite, &QButtonGroup::idClicked, this,
            [this](int id) { device->DoWriteUserPic(layerOf(id), map); });
    connect(buttonGroupRead, &QButtonGroup::idClicked, this,
            [this](int id) { device->DoReadUserPic(layerOf(id)); });
    connect(device, &DialogDeviceConnect::onGetPictrue, this, &FrameLight::onGetPictrue);
    connect(pushButtonSave, &QPushButton::clicked, this, &FrameLight::saveWork);
    connect(pushButtonUpdate, &QPushButton::clicked, this, &FrameLight::updateWork);
    connect(tableView, &QTableView::clicked, this, &FrameLight::onTableClicked);
    connect(tableView, &QTableView::entered, this, [this](const QModelIndex& index) {
        tableView->viewport()->setCursor(index.column() == kManageColumn ? Qt::PointingHandCursor
                                                                         : Qt::ArrowCursor);
    });
}

FrameLight::~FrameLight() = default;

// ---- painting

void FrameLight::paintKey(uchar code)
{
    const quint8 position = PositionOfCode(code);
    if (position >= kKeyPositions) return; // a key with no light of its own
    QColor paint = color;
    if (checkBoxRam->isChecked())
        paint.setRgb(int(random.bounded(256)), int(random.bounded(256)), int(random.bounded(256)));
    map[position * kChannels] = char(paint.red());
    map[position * kChannels + 1] = char(paint.green());
    map[position * kChannels + 2] = char(paint.blue());
    frameKeyboard->setKeyColor(code, paint);
}

void FrameLight::paintDraggedKeys()
{
    if (!dragging) return; // a click paints through onKeyClicked
    for (KeyboardButton* key : frameKeyboard->buttons()) {
        if (!key->isChecked() || draggedCodes.contains(key->code())) continue;
        draggedCodes.insert(key->code());
        paintKey(key->code());
    }
}

void FrameLight::onPickupColor(const QColor& picked)
{
    color = picked;
    showCurrentColor();
}

void FrameLight::showCurrentColor()
{
    labelColor->setStyleSheet(
        QString::fromLatin1(kColorStyle).arg(color.red()).arg(color.green()).arg(color.blue()));
}

void FrameLight::onGetPictrue(const QByteArray& data)
{
    takeMap(data);
    showMap();
}

void FrameLight::takeMap(const QByteArray& data)
{
    map = data;
    // A short read or a work with bad text leaves the rest of the keys dark; the keyboard
    // always gets a whole map.
    if (map.size() < kMapSize) map.append(QByteArray(kMapSize - map.size(), '\0'));
}

void FrameLight::showMap()
{
    for (int position = 0; position < kKeyPositions; ++position) {
        const quint8 code = CodeOfPosition(quint8(position));
        if (code == 0 || code == ModuleKeyboard::kAllKeys) continue;
        const qsizetype at = qsizetype(position) * kChannels;
        frameKeyboard->setKeyColor(
            code, QColor(byteAt(map, at), byteAt(map, at + 1), byteAt(map, at + 2)));
    }
}

void FrameLight::clearMap()
{
    map = QByteArray(kMapSize, '\0');
    frameKeyboard->setKeyColor(ModuleKeyboard::kAllKeys, Qt::black);
}

bool FrameLight::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool left = (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease) &&
                      static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (watched == frameKeyboard && left) {
        // A band drawn over the keys paints each key it takes, once per band.
        dragging = type == QEvent::MouseButtonPress;
        draggedCodes.clear();
        if (!dragging)
            for (KeyboardButton* key : frameKeyboard->buttons())
                key->setChecked(false);
    } else if ((watched == labelColor || watched == labelPickup) &&
               type == QEvent::MouseButtonRelease) {
        dialogPicker->setColor(color);
        dialogPicker->showAt(-1, -1);
    }
    return QFrame::eventFilter(watched, event);
}

// ---- the works library

void FrameLight::loadWorks()
{
    for (const LightWork& work : store->load())
        appendRow(work);
}

void FrameLight::appendRow(const LightWork& work)
{
    auto* preview = new QStandardItem;
    preview->setData(work.image, PictureDelegate::kImageRole);
    preview->setData(work.data, kMapRole);
    auto* name = new QStandardItem(work.name);
    auto* manage = new QStandardItem(tr("删除"));
    manage->setTextAlignment(Qt::AlignCenter);
    manage->setForeground(QColor(0x63, 0x29, 0xB6));
    for (QStandardItem* item : {preview, name, manage})
        item->setEditable(false);
    model->appendRow({preview, name, manage});
    tableView->setRowHeight(model->rowCount() - 1, kRowHeight);
}

void FrameLight::writeWorks()
{
    QList<LightWork> works;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QStandardItem* preview = model->item(row, 0);
        works.append({preview->data(PictureDelegate::kImageRole).toString(),
                      model->item(row, 1)->text(), preview->data(kMapRole).toString()});
    }
    store->save(works); // a failure is logged by the store; the table keeps the session's works
}

QString FrameLight::grabPreview()
{
    lastGrab = frameKeyboard->grab().toImage();
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!lastGrab.save(&buffer, "PNG")) qCWarning(lcLighting) << "cannot make a work's preview";
    return QString::fromLatin1(png.toBase64());
}

void FrameLight::saveWork()
{
    const QString image = grabPreview();
    appendRow({image, lineEditName->text().trimmed(), LightWorkStore::toHex(map)});
    writeWorks();
}

void FrameLight::updateWork()
{
    const QString image = grabPreview();
    if (selected < 0 || selected >= model->rowCount()) return;
    QStandardItem* preview = model->item(selected, 0);
    preview->setData(image, PictureDelegate::kImageRole);
    preview->setData(LightWorkStore::toHex(map), kMapRole);
    model->item(selected, 1)->setText(lineEditName->text().trimmed());
    writeWorks();
}

void FrameLight::onTableClicked(const QModelIndex& index)
{
    if (!index.isValid()) return;
    selected = index.row();
    if (index.column() == kManageColumn) return deleteRow(selected);
    pushButtonUpdate->show();
    lineEditName->setText(model->item(selected, 1)->text());
    takeMap(LightWorkStore::fromHex(model->item(selected, 0)->data(kMapRole).toString()));
    showMap();
}

void FrameLight::deleteRow(int row)
{
    const auto answer = QMessageBox::question(this, tr("提示"), tr("确认要删除此作品吗？"),
                                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer != QMessageBox::Yes) return; // the row stays selected
    model->removeRow(row);
    pushButtonUpdate->hide();
    lineEditName->setText(tr("我的作品%1").arg(model->rowCount()));
    selected = -1;
    writeWorks();
}
