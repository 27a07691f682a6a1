#include "tracking/fault_text.h"

#include <QCoreApplication>

QString faultText(const QString &fault)
{
    // For those who translate: the libraries and the places where records are refused know nothing of languages.
    [[maybe_unused]] static constexpr const char *Known[] = {
        QT_TRANSLATE_NOOP("Fault", "fewer than three octets of a block header"),
        QT_TRANSLATE_NOOP("Fault", "block length is zero"),
        QT_TRANSLATE_NOOP("Fault", "block length is less than the header's"),
        QT_TRANSLATE_NOOP("Fault", "block runs past the end of the data"),
        QT_TRANSLATE_NOOP("Fault", "no table for this category"),
        QT_TRANSLATE_NOOP("Fault", "FSPEC runs past the end of the block"),
        QT_TRANSLATE_NOOP("Fault", "FSPEC bit of no item is set"),
        QT_TRANSLATE_NOOP("Fault", "item runs past the end of the block"),
        QT_TRANSLATE_NOOP("Fault", "repetition count runs past the end of the block"),
        QT_TRANSLATE_NOOP("Fault", "explicit length is zero"),
        QT_TRANSLATE_NOOP("Fault", "message header is cut short"),
        QT_TRANSLATE_NOOP("Fault", "unknown message type"),
        QT_TRANSLATE_NOOP("Fault", "length leaves no room for the message"),
        QT_TRANSLATE_NOOP("Fault", "message runs past the end of the data"),
        QT_TRANSLATE_NOOP("Fault", "length does not fit the number of records"),
        QT_TRANSLATE_NOOP("Fault", "no frame of the encapsulation"),
        QT_TRANSLATE_NOOP("Fault", "the length is not that of the downlink format"),
        QT_TRANSLATE_NOOP("Fault", "wrong parity"),
        QT_TRANSLATE_NOOP("Fault", "not decoded"),
    };
    return QCoreApplication::translate("Fault", fault.toUtf8().constData());
}
