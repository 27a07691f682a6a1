#include "explanation/weather_explanation.h"

#include "asterix/asterix.h"
#include "explanation/explained_fields.h"
#include "explanation/report_view_forms.h"

#include <QCoreApplication>

#include <cmath>
#include <optional>

namespace {

enum WeatherMessage : std::uint8_t { PolarVectors = 1, StartOfPicture = 254, EndOfPicture = 255 };

constexpr double SameTime = 0.004; // seconds, half a unit of the item
constexpr double SameRange = 1e-6; // nautical miles

QString weatherText(const char *text)
{
    return QCoreApplication::translate("WeatherExplanation", text);
}

// Follows the messages as the weather processor did.
class PictureFinder {
public:
    explicit PictureFinder(const ShownWeather &weather) : m_weather(weather) { }

    void take(const KeptReport &report)
    {
        _ast_datarecord_t generic;
        if (!decodeKept(report, generic)) {
            return;
        }
        _ast_datarecord_008_t record;
        ast_datarecord_008_disassemble(&record, generic);
        if (record.i000.type == StartOfPicture) {
            begin(report, record);
        } else if (record.i000.type == PolarVectors && m_start) {
            look(report, record);
        } else if (record.i000.type == EndOfPicture) {
            end(report);
        }
    }

    const WeatherOrigin &found() const { return m_found; }

private:
    void begin(const KeptReport &report, const _ast_datarecord_008_t &record)
    {
        const double time = record.i090.present ? record.i090.value * record.i090.lsb : -1.0;
        m_vectors.reset();
        m_start.reset();
        if (std::abs(time - m_weather.timeOfDay) <= SameTime) {
            m_start = report;
        }
        if (record.i100.present) {
            m_scale = record.i100.scalingFactor;
        }
    }

    void look(const KeptReport &report, const _ast_datarecord_008_t &record)
    {
        if (record.i020.intensity != m_weather.vector.intensity || m_vectors) {
            return;
        }
        for (int i = 0; i < record.i034.count; ++i) {
            const auto &vector = record.i034.vectors[i];
            const double unit = m_scale ? std::ldexp(1.0, *m_scale - 7) : m_weather.vector.endRange / vector.endRange;
            if (std::abs(vector.startRange * unit - m_weather.vector.startRange) <= SameRange
                && std::abs(vector.endRange * unit - m_weather.vector.endRange) <= SameRange
                && vector.azimuth == m_weather.vector.azimuth) {
                m_vectors = report;
                m_element = i + 1;
                return;
            }
        }
    }

    void end(const KeptReport &report)
    {
        if (m_start && m_vectors) {
            m_found = {{*m_vectors, *m_start, report}, m_element};
        }
        m_start.reset();
        m_vectors.reset();
    }

    const ShownWeather &m_weather;
    std::optional<int> m_scale; // the picture that told it may be kept no more
    std::optional<KeptReport> m_start; // of a picture of that time
    std::optional<KeptReport> m_vectors;
    int m_element = 0;
    WeatherOrigin m_found;
};

class WeatherExplainer {
public:
    WeatherExplainer(
        const ShownWeather &weather, const WeatherOrigin &origin, const QList<ReportView> &views, const QDateTime &now)
        : m_weather(weather), m_element(QString("034[%1]/").arg(origin.element)), m_views(views), m_now(now)
    {
    }

    QList<ExplainedValue> run()
    {
        add(weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "Intensity")), "020/I", VectorReport,
            QString::number(m_weather.vector.intensity), levelRule());
        add(weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "From range")), m_element + "STR", VectorReport,
            miles(m_weather.vector.startRange), rangeRule(m_element + "STR"));
        add(weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "To range")), m_element + "ENDR", VectorReport,
            miles(m_weather.vector.endRange), rangeRule(m_element + "ENDR"));
        add(weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "Azimuth")), m_element + "AZ", VectorReport,
            QString("%1°").arg(m_weather.vector.azimuth, 0, 'f', 2), widthRule());
        add(weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "Source")), "010/SAC 010/SIC", VectorReport,
            sourceText(),
            weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "drawn around the place of the input's sensor")));
        add(weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "Scaling factor")), "100/F", StartReport, {}, {});
        add(weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "Time of picture")), "090", StartReport,
            m_weather.timeOfDay < 0.0 ? QString() : timeOfDayText(m_weather.timeOfDay), {});
        add(weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "Vectors in picture")), "120", EndReport, {},
            weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "as its end announces")));
        return m_values;
    }

private:
    enum Report { VectorReport, StartReport, EndReport };

    // What is no longer kept explains nothing.
    void add(const QString &name, const QString &keys, Report report, const QString &text, const QString &rule)
    {
        const auto fields =
            report < m_views.size() ? explainedFields(name, keys, m_views[report], report, m_now) : std::nullopt;
        addExplained(m_values, name, fields, text,
            m_views.isEmpty() ? weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "its message is kept no more"))
                              : rule);
    }

    static QString miles(double range) { return QString("%1 NM").arg(range, 0, 'f', 2); }

    QString sourceText() const
    {
        const auto code = [this](const char *key) {
            const ReportField *field = m_views.isEmpty() ? nullptr : m_views[VectorReport].find(key);
            return field ? field->value : QString();
        };
        return code("010/SAC").isEmpty() ? QString() : code("010/SAC") + '/' + code("010/SIC");
    }

    QString levelRule() const
    {
        return m_weather.hatched
            ? weatherText(QT_TRANSLATE_NOOP(
                "WeatherExplanation", "hatched, since this level is switched off (Weather Intensity)"))
            : weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "in the colour of its level, stronger over weaker"));
    }

    QString rangeRule(const QString &key) const
    {
        const ReportField *raw = m_views.isEmpty() ? nullptr : m_views[VectorReport].find(key);
        const ReportField *scale = m_views.size() > StartReport ? m_views[StartReport].find("100/F") : nullptr;
        if (!raw || !scale) {
            return weatherText(
                QT_TRANSLATE_NOOP("WeatherExplanation", "scaled by the factor that an earlier picture began with"));
        }
        return weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "%1 × 2^(F − 7) NM, with the scaling factor F = %2"))
            .arg(raw->value, scale->value);
    }

    QString widthRule() const
    {
        const QString width = QString::number(m_weather.width, 'f', 2);
        return m_weather.widthMeasured
            ? weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "drawn %1° wide, so that neighbours touch"))
                  .arg(width)
            : weatherText(QT_TRANSLATE_NOOP("WeatherExplanation", "drawn %1° wide, as the settings say")).arg(width);
    }

    const ShownWeather &m_weather;
    const QString m_element;
    const QList<ReportView> &m_views;
    const QDateTime m_now;
    QList<ExplainedValue> m_values;
};

} // namespace

WeatherOrigin originOf(const ShownWeather &weather, const QList<KeptReport> &kept)
{
    PictureFinder finder(weather);
    for (auto report = kept.crbegin(); report != kept.crend(); ++report) {
        finder.take(*report);
    }
    return finder.found();
}

QList<ExplainedValue> explainWeather(
    const ShownWeather &weather, const WeatherOrigin &origin, const QList<ReportView> &views, const QDateTime &now)
{
    return WeatherExplainer(weather, origin, views, now).run();
}
