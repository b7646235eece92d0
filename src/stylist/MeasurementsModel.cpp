#include "stylist/MeasurementsModel.h"

#include "storage/DataFolder.h"
#include "storage/Preferences.h"

namespace loom
{

namespace
{

using Entry = MiraMeasurements::Entry;

const QString imperial = QStringLiteral("imperial");

/// Where a measure stands in the sheet, in the order of the model's measures.
std::vector<QString Entry::*> fieldsOf(int measure, SizeUnit unit)
{
    if (measure == 0 && unit == SizeUnit::Imperial)
        return {&Entry::feet, &Entry::inches};
    static constexpr std::array fields{&Entry::height, &Entry::weight, &Entry::bust, &Entry::waist, &Entry::hip};
    return {fields.at(static_cast<std::size_t>(measure))};
}

void copy(const Entry& from, Entry& to, int measure, SizeUnit unit)
{
    for (QString Entry::* const field : fieldsOf(measure, unit))
        to.*field = from.*field;
}

/// A person, to try one measure at.
MiraMeasurements somebody(SizeUnit unit)
{
    return {.unit = unit, .height = 170, .weight = 65, .bust = {}, .waist = {}, .hip = {}};
}

QJsonObject toJson(const MiraMeasurements& measurements)
{
    QJsonObject json{{QStringLiteral("height"), measurements.height},
                     {QStringLiteral("weight"), measurements.weight},
                     {QStringLiteral("fit"), miraFitName(measurements.fit)}};
    const auto add = [&json](const QString& key, const std::optional<double>& value) {
        if (value)
            json.insert(key, *value);
    };
    add(QStringLiteral("bust"), measurements.bust);
    add(QStringLiteral("waist"), measurements.waist);
    add(QStringLiteral("hip"), measurements.hip);
    return json;
}

MiraMeasurements decodeMeasurements(const JsonReader& json)
{
    MiraMeasurements measurements{.height = json.number("height"),
                                  .weight = json.number("weight"),
                                  .bust = json.optionalDecimal("bust"),
                                  .waist = json.optionalDecimal("waist"),
                                  .hip = json.optionalDecimal("hip"),
                                  .fit = miraFitFrom(json.optionalText("fit").value_or(QString()))};
    if (!measurements.isPlausible())
        json.fail(QStringLiteral("not the measures of a person"));
    return measurements;
}

} // namespace

MeasurementsModel::MeasurementsModel(DataFolder& folder, Preferences& preferences, QObject* parent)
    : QObject(parent)
    , m_folder(folder)
    , m_preferences(preferences)
{
    followUnit();
    connect(&preferences, &Preferences::changed, this, [this](const QString& key) {
        if (key == QLatin1String(preferences::sizeUnit.key))
            followUnit();
    });
}

void MeasurementsModel::setMetric(bool isMetric)
{
    m_preferences.set(preferences::sizeUnit, isMetric ? QStringLiteral("metric") : imperial);
}

void MeasurementsModel::followUnit()
{
    m_entry.unit = m_preferences.value(preferences::sizeUnit) == imperial ? SizeUnit::Imperial : SizeUnit::Metric;
    m_flaw.reset();
    show(known()); // what is no measure stays as it was typed: in this unit it may be one
    for (int measure = 0; measure < MeasureCount; ++measure) {
        auto& value = m_known[static_cast<std::size_t>(measure)];
        if (!value)
            value = understood(static_cast<Measure>(measure));
    }
    Q_EMIT changed();
}

MiraMeasurements MeasurementsModel::known() const
{
    MiraMeasurements measurements = somebody(m_entry.unit);
    measurements.height = m_known[Height].value_or(measurements.height);
    measurements.weight = m_known[Weight].value_or(measurements.weight);
    measurements.bust = m_known[Bust];
    measurements.waist = m_known[Waist];
    measurements.hip = m_known[Hip];
    measurements.fit = m_entry.fit;
    return measurements;
}

void MeasurementsModel::show(const MiraMeasurements& measurements)
{
    const Entry shown = measurements.entry(m_entry.unit);
    for (int measure = 0; measure < MeasureCount; ++measure) {
        if (m_known[static_cast<std::size_t>(measure)])
            copy(shown, m_entry, measure, m_entry.unit);
    }
}

std::optional<double> MeasurementsModel::understood(Measure measure) const
{
    Entry trial = somebody(m_entry.unit).entry(m_entry.unit);
    copy(m_entry, trial, measure, m_entry.unit);
    const auto measurements = MiraMeasurements::fromEntry(trial);
    if (!measurements)
        return std::nullopt;
    switch (measure) {
    case Height:
        return measurements->height;
    case Weight:
        return measurements->weight;
    case Bust:
        return measurements->bust;
    case Waist:
        return measurements->waist;
    case Hip:
        return measurements->hip;
    case MeasureCount:
        break;
    }
    return std::nullopt;
}

void MeasurementsModel::type(Measure measure, QString Entry::* field, const QString& text)
{
    if (m_entry.*field == text)
        return;
    m_entry.*field = text;
    m_known[measure] = understood(measure);
    m_flaw.reset();
    Q_EMIT changed();
}

void MeasurementsModel::setFit(const QString& fit)
{
    m_entry.fit = miraFitFrom(fit);
    Q_EMIT changed();
}

QStringList MeasurementsModel::fits()
{
    return {miraFitName(MiraFit::Regular), miraFitName(MiraFit::Loose), miraFitName(MiraFit::Fitted)};
}

void MeasurementsModel::begin()
{
    m_flaw.reset();
    if (!std::exchange(m_wasRead, true)) {
        const auto kept = m_folder.load(QString::fromLatin1(fileName), decodeMeasurements);
        m_isKept = kept.has_value();
        if (kept) {
            m_known = {kept->height, kept->weight, kept->bust, kept->waist, kept->hip};
            m_entry.fit = kept->fit;
            show(*kept);
        }
    }
    Q_EMIT changed();
}

void MeasurementsModel::save()
{
    const auto entered = MiraMeasurements::fromEntry(m_entry);
    m_flaw = entered ? std::nullopt : std::optional(entered.error());
    if (entered) {
        m_folder.save(QString::fromLatin1(fileName), toJson(known()));
        m_wasRead = true;
        m_isKept = true;
    }
    Q_EMIT changed();
    if (entered)
        Q_EMIT messageReady(known().message());
}

void MeasurementsModel::forget()
{
    m_folder.remove(QString::fromLatin1(fileName));
    m_entry = Entry{.unit = m_entry.unit};
    m_known = {};
    m_flaw.reset();
    m_wasRead = true;
    m_isKept = false;
    Q_EMIT changed();
}

} // namespace loom
