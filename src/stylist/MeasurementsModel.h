#pragma once

#include "stylist/MiraMeasurements.h"

#include <QObject>
#include <QStringList>

#include <array>

namespace loom
{

class DataFolder;
class Preferences;

/// The sheet on which the shopper enters their measurements, and what they saved there last. What is typed is known in
/// metric too, so that a change of the unit loses nothing. One per process; main thread.
class MeasurementsModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isMetric READ isMetric WRITE setMetric NOTIFY changed)
    Q_PROPERTY(QString height READ height WRITE setHeight NOTIFY changed)
    Q_PROPERTY(QString feet READ feet WRITE setFeet NOTIFY changed)
    Q_PROPERTY(QString inches READ inches WRITE setInches NOTIFY changed)
    Q_PROPERTY(QString weight READ weight WRITE setWeight NOTIFY changed)
    Q_PROPERTY(QString bust READ bust WRITE setBust NOTIFY changed)
    Q_PROPERTY(QString waist READ waist WRITE setWaist NOTIFY changed)
    Q_PROPERTY(QString hip READ hip WRITE setHip NOTIFY changed)
    Q_PROPERTY(QString fit READ fit WRITE setFit NOTIFY changed)
    Q_PROPERTY(QStringList fits READ fits CONSTANT)
    Q_PROPERTY(QString failure READ failure NOTIFY changed)
    Q_PROPERTY(QStringList flawed READ flawed NOTIFY changed)
    Q_PROPERTY(bool isKept READ isKept NOTIFY changed)

public:
    using Entry = MiraMeasurements::Entry;

    /// The name of the file of the data folder.
    static constexpr const char* fileName = "lst_mira_measurements";

    MeasurementsModel(DataFolder& folder, Preferences& preferences, QObject* parent = nullptr);

    [[nodiscard]] bool isMetric() const { return m_entry.unit == SizeUnit::Metric; }
    /// Of everything that is measured in the application.
    void setMetric(bool isMetric);

    // The fields as they are shown; their numbers are in the unit of the sheet.

    [[nodiscard]] const QString& height() const { return m_entry.height; }
    [[nodiscard]] const QString& feet() const { return m_entry.feet; }
    [[nodiscard]] const QString& inches() const { return m_entry.inches; }
    [[nodiscard]] const QString& weight() const { return m_entry.weight; }
    [[nodiscard]] const QString& bust() const { return m_entry.bust; }
    [[nodiscard]] const QString& waist() const { return m_entry.waist; }
    [[nodiscard]] const QString& hip() const { return m_entry.hip; }
    void setHeight(const QString& text) { type(Height, &Entry::height, text); }
    void setFeet(const QString& text) { type(Height, &Entry::feet, text); }
    void setInches(const QString& text) { type(Height, &Entry::inches, text); }
    void setWeight(const QString& text) { type(Weight, &Entry::weight, text); }
    void setBust(const QString& text) { type(Bust, &Entry::bust, text); }
    void setWaist(const QString& text) { type(Waist, &Entry::waist, text); }
    void setHip(const QString& text) { type(Hip, &Entry::hip, text); }
    /// "regular", "loose" or "fitted".
    [[nodiscard]] QString fit() const { return miraFitName(m_entry.fit); }
    void setFit(const QString& fit);
    [[nodiscard]] static QStringList fits();
    /// What a fit is called in the language of the window.
    [[nodiscard]] Q_INVOKABLE static QString fitText(const QString& fit) { return miraFitLabel(miraFitFrom(fit)); }

    /// What was wrong when it was to be saved; empty once it is changed.
    [[nodiscard]] QString failure() const { return m_flaw ? errorDescription(m_flaw->problem) : QString(); }
    /// The fields that the failure is about, by their names here.
    [[nodiscard]] QStringList flawed() const { return m_flaw ? m_flaw->fields : QStringList(); }
    /// Measurements are kept on this machine.
    [[nodiscard]] bool isKept() const { return m_isKept; }

    /// The sheet opens: with what was typed before, or else with what was saved.
    Q_INVOKABLE void begin();
    /// Keeps what is right and has a message of it; says what is wrong otherwise.
    Q_INVOKABLE void save();
    /// Lets go of what was saved and of what was typed: at the end of a session, and when the shopper wants it.
    Q_INVOKABLE void forget();

Q_SIGNALS:
    void changed();
    /// What the shopper tells the stylist.
    void messageReady(const QString& text);

private:
    enum Measure { Height, Weight, Bust, Waist, Hip, MeasureCount };

    void type(Measure measure, QString Entry::* field, const QString& text);
    /// In metric, where the fields of it hold a measure of a person.
    [[nodiscard]] std::optional<double> understood(Measure measure) const;
    /// As far as it is known.
    [[nodiscard]] MiraMeasurements known() const;
    void show(const MiraMeasurements& measurements);
    void followUnit();

    DataFolder& m_folder;
    Preferences& m_preferences;
    Entry m_entry;
    std::array<std::optional<double>, MeasureCount> m_known; ///< in metric, unrounded
    std::optional<MiraMeasurements::Flaw> m_flaw;
    bool m_wasRead = false;
    bool m_isKept = false;
};

} // namespace loom
