#include "storage/Preferences.h"

#include "storage/DataFolder.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace loom
{

namespace
{

const QString fileName = QStringLiteral("lst_preferences");

/// Takes the settings as they stand, also those of a newer version that this one does not know.
QJsonObject decodePreferences(const JsonReader& json)
{
    if (!json.isObject())
        json.fail(QStringLiteral("expected an object"));
    QJsonObject values;
    for (const auto& [key, value] : json.members())
        values.insert(key, value.asJson());
    return values;
}

QString keyOf(const char* key)
{
    return QString::fromLatin1(key);
}

} // namespace

Preferences::Preferences(DataFolder& folder, QObject* parent)
    : QObject(parent)
    , m_folder(folder)
    , m_values(folder.load(fileName, decodePreferences).value_or(QJsonObject()))
{
}

bool Preferences::value(const Preference<bool>& preference) const
{
    return m_values.value(keyOf(preference.key)).toBool(preference.fallback);
}

double Preferences::value(const Preference<double>& preference) const
{
    return m_values.value(keyOf(preference.key)).toDouble(preference.fallback);
}

QString Preferences::value(const Preference<const char*>& preference) const
{
    return m_values.value(keyOf(preference.key)).toString(QString::fromUtf8(preference.fallback));
}

QStringList Preferences::value(const ListPreference& preference) const
{
    QStringList texts;
    const QJsonArray list = m_values.value(keyOf(preference.key)).toArray();
    for (const auto text : list) {
        if (text.isString())
            texts.append(text.toString());
    }
    return texts;
}

std::optional<QJsonObject> Preferences::value(const ObjectPreference& preference) const
{
    const QJsonValue value = m_values.value(keyOf(preference.key));
    return value.isObject() ? std::optional(value.toObject()) : std::nullopt;
}

void Preferences::set(const Preference<bool>& preference, bool value)
{
    setJson(keyOf(preference.key), value);
}

void Preferences::set(const Preference<double>& preference, double value)
{
    setJson(keyOf(preference.key), value);
}

void Preferences::set(const Preference<const char*>& preference, const QString& value)
{
    setJson(keyOf(preference.key), value);
}

void Preferences::set(const ListPreference& preference, const QStringList& value)
{
    setJson(keyOf(preference.key), QJsonArray::fromStringList(value));
}

void Preferences::set(const ObjectPreference& preference, const QJsonObject& value)
{
    setJson(keyOf(preference.key), value);
}

void Preferences::remove(const ObjectPreference& preference)
{
    setJson(keyOf(preference.key), QJsonValue(QJsonValue::Undefined));
}

void Preferences::setJson(const QString& key, const QJsonValue& value)
{
    if (m_values.value(key) == value)
        return;
    if (value.isUndefined())
        m_values.remove(key);
    else
        m_values.insert(key, value);
    m_folder.save(fileName, m_values);
    Q_EMIT changed(key);
}

} // namespace loom
