// SPDX-License-Identifier: MIT
#include "platform/BusMessage.h"

#include <QHash>
#include <QVariantMap>

#include <algorithm>

#include <systemd/sd-bus.h>

namespace platform {

namespace {

constexpr int kMostValues = 4096;

/// The D-Bus signature of a value we send; null when we send none of its type.
const char *signatureOf(const QVariant &value)
{
    static const QHash<int, const char *> signatures{
        {QMetaType::Bool, "b"},
        {QMetaType::Int, "i"},
        {QMetaType::UInt, "u"},
        {QMetaType::ULongLong, "t"},
        {QMetaType::Double, "d"},
        {QMetaType::QString, "s"},
        {QMetaType::QVariantMap, "a{sv}"},
        {QMetaType::fromType<QVariant>().id(), "v"},
    };
    return signatures.value(value.typeId());
}

bool append(sd_bus_message *message, const QVariant &value);

bool appendVariant(sd_bus_message *message, const QVariant &value)
{
    const char *signature = signatureOf(value);
    return signature && sd_bus_message_open_container(message, 'v', signature) >= 0 &&
           append(message, value) && sd_bus_message_close_container(message) >= 0;
}

bool appendMap(sd_bus_message *message, const QVariantMap &map)
{
    bool isAppended = sd_bus_message_open_container(message, 'a', "{sv}") >= 0;
    for (auto it = map.cbegin(); isAppended && it != map.cend(); ++it) {
        isAppended = sd_bus_message_open_container(message, 'e', "sv") >= 0 &&
                     append(message, it.key()) && appendVariant(message, it.value()) &&
                     sd_bus_message_close_container(message) >= 0;
    }
    return isAppended && sd_bus_message_close_container(message) >= 0;
}

bool append(sd_bus_message *message, const QVariant &value)
{
    const char *signature = signatureOf(value);
    switch (signature ? *signature : '\0') {
    case '\0':
        return false;
    case 'a':
        return appendMap(message, value.toMap());
    case 'v':
        return appendVariant(message, value.value<QVariant>());
    case 's':
        return sd_bus_message_append_basic(message, 's', value.toString().toUtf8().constData()) >=
               0;
    case 'b': {
        const int flag = value.toBool();
        return sd_bus_message_append_basic(message, 'b', &flag) >= 0;
    }
    default: // The number lies in the QVariant as D-Bus wants it.
        return sd_bus_message_append_basic(message, *signature, value.constData()) >= 0;
    }
}

template <typename T>
QVariant readNumber(sd_bus_message *message, char type)
{
    T number{};
    const bool isRead = sd_bus_message_read_basic(message, type, &number) > 0;
    return isRead ? QVariant::fromValue(number) : QVariant();
}

QVariant readText(sd_bus_message *message, char type)
{
    const char *text = nullptr;
    const bool isRead = sd_bus_message_read_basic(message, type, &text) > 0;
    return isRead ? QVariant(QString::fromUtf8(text)) : QVariant();
}

QVariantList readValues(sd_bus_message *message, int &left);

QVariant readContainer(sd_bus_message *message, char type, const char *contents, int &left)
{
    if (sd_bus_message_enter_container(message, type, contents) <= 0)
        return {};
    const bool isMap = type == 'a' && contents[0] == '{' && contents[1] == 's';
    const QVariantList values = readValues(message, left);
    if (left <= 0 || sd_bus_message_exit_container(message) < 0) {
        left = 0;
        return {};
    }
    if (type == 'v')
        return values.value(0);
    if (!isMap)
        return values;
    QVariantMap map;
    for (const QVariant &entry : values) {
        const QVariantList pair = entry.toList();
        map.insert(pair.value(0).toString(), pair.value(1));
    }
    return map;
}

QVariant readValue(sd_bus_message *message, char type, const char *contents, int &left)
{
    switch (type) {
    case 'b':
        return readNumber<int>(message, type).toBool();
    case 'i':
        return readNumber<qint32>(message, type);
    case 'u':
        return readNumber<quint32>(message, type);
    case 'x':
        return readNumber<qint64>(message, type);
    case 't':
        return readNumber<quint64>(message, type);
    case 'd':
        return readNumber<double>(message, type);
    case 's':
    case 'o':
    case 'g':
        return readText(message, type);
    case 'v':
    case 'r':
    case 'e':
    case 'a':
        return readContainer(message, type, contents, left);
    default: // a type that nothing here asks for
        sd_bus_message_skip(message, nullptr);
        return {};
    }
}

/// The values up to the end of the message or container. \p left counts the values that may still
/// be read; at 0 reading has failed.
QVariantList readValues(sd_bus_message *message, int &left)
{
    QVariantList values;
    char type = 0;
    const char *contents = nullptr;
    while (left > 0 && sd_bus_message_peek_type(message, &type, &contents) > 0) {
        --left;
        values.append(readValue(message, type, contents, left));
    }
    return values;
}

} // namespace

QVariant busVariant(const QVariant &value)
{
    return QVariant(QMetaType::fromType<QVariant>(), &value);
}

bool appendArguments(sd_bus_message *message, const QVariantList &arguments)
{
    return std::ranges::all_of(
        arguments, [message](const QVariant &argument) { return append(message, argument); });
}

BusMessage readMessage(sd_bus_message *message)
{
    BusMessage result{.sender = QString::fromUtf8(sd_bus_message_get_sender(message))};
    if (const sd_bus_error *error = sd_bus_message_get_error(message)) {
        result.error = QString::fromUtf8(error->name);
        result.errorText = QString::fromUtf8(error->message);
        return result;
    }
    int left = kMostValues;
    result.arguments = readValues(message, left);
    return result;
}

} // namespace platform
