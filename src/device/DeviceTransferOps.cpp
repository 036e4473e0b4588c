// Paged transfers: macros to a keyboard slot, and user pictures both ways.

#include "CommandCatalogue.h"
#include "DeviceBytes.h"
#include "DialogDeviceConnect.h"
#include "MacroBlob.h"

namespace {

constexpr int kPageFrameHeader = 8;
constexpr quint8 kPayloadLength = 0x38; // 56
constexpr int kPicturePayload = 56;
constexpr int kPictureWritePages = 7;
constexpr int kPictureReadPages = 6;
constexpr int kReadFrameLength = 8;
constexpr int kEffectUserPicture = 13;

} // namespace

void DialogDeviceConnect::DoSetMacro(quint8 keyCode, quint16 repeat, quint8 mode, quint8 macroId,
                                     const QByteArray& stream)
{
    const QByteArray blob = MacroBlob::build(repeat, stream);
    const quint8 pages = static_cast<quint8>(MacroBlob::pageCount(blob));
    for (quint8 page = 0; page < pages; ++page) {
        QByteArray c = DeviceBytes::command(CommandCatalogue::CMD_SET_MACRO, kPageFrameHeader);
        c[1] = static_cast<char>(macroId);
        c[2] = static_cast<char>(page);
        c[3] = static_cast<char>(kPayloadLength);
        c[4] = static_cast<char>(page + 1 == pages ? 1 : 0);
        c.append(MacroBlob::page(blob, page));
        enqueue(c, Kick::Deferred);
    }
    // The pages are not held back by a read sequence, but the key entry is.
    const quint8 entry[4] = {0x09, mode, macroId, 0x00};
    DoSetKey(keyCode, entry, 0, 1);
}

void DialogDeviceConnect::DoWriteUserPic(quint8 slot, const QByteArray& colourMap)
{
    if (readingAll)
        return;
    musicOn = false;
    // Switch the effect to this slot's picture first; the pages follow.
    writeRowCells(CommandCatalogue::CMD_SET_LEDPARAM, {{1, kEffectUserPicture}, {4, slot * 16}});
    for (int page = 0; page < kPictureWritePages; ++page) {
        QByteArray c = DeviceBytes::command(CommandCatalogue::CMD_SET_USERPIC, kPageFrameHeader);
        c[1] = static_cast<char>(slot);
        c[2] = char(0xFF);
        c[3] = static_cast<char>(page);
        c[4] = static_cast<char>(kPayloadLength);
        c[5] = static_cast<char>(page == kPictureWritePages - 1 ? 1 : 0);
        QByteArray payload = colourMap.mid(page * kPicturePayload, kPicturePayload);
        payload.resize(kPicturePayload, '\0'); // a short map goes out padded with zeros
        c.append(payload);
        enqueue(c, Kick::Deferred);
    }
}

void DialogDeviceConnect::DoReadUserPic(quint8 slot)
{
    if (readingAll)
        return;
    userPicture.clear();
    for (int page = 0; page < kPictureReadPages; ++page) {
        QByteArray c = DeviceBytes::command(CommandCatalogue::CMD_GET_USERPIC, kReadFrameLength);
        c[1] = static_cast<char>(slot);
        c[2] = char(0xFF);
        c[3] = static_cast<char>(page);
        enqueue(c, Kick::Deferred);
    }
}
