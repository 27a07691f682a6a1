#include "assessment/bias_estimator.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <unordered_map>

namespace {

constexpr std::size_t Unknowns = 4; // range bias, range gain, azimuth bias, time offset
constexpr double GainUnit = 1e5; // metres: the gain is solved for as metres in a hundred kilometres
constexpr float LargestRangeError = 5000.0F; // metres
constexpr float LargestAzimuthError = 5.0F; // degrees

constexpr std::size_t LeastPairs = 100;
constexpr int LeastAircraft = 3;
constexpr int HuberRounds = 15;
constexpr int RejectionRounds = 10;
constexpr double HuberLimit = 1.345; // deviations; 95 % as efficient as least squares where there are no outliers
constexpr double RejectionLimit = 4.0; // deviations
constexpr double DeviationOfMad = 1.4826; // standard deviation over median absolute deviation of a normal distribution
constexpr double Confidence = 1.959964; // of the normal distribution, 95 % on both sides
constexpr double SmallestPivot = 1e-10; // of the largest

constexpr double LeastRangeDeviation = 0.1; // metres
constexpr double LeastAzimuthDeviation = 1e-4; // degrees
constexpr std::size_t MostResiduals = 4000;

using Vector = std::array<double, Unknowns>;
using Matrix = std::array<Vector, Unknowns>;
using Pair = BiasEstimator::Pair;

Vector rangeRow(const Pair &pair)
{
    return {1.0, pair.range / GainUnit, 0.0, -static_cast<double>(pair.rangeRate)};
}

Vector azimuthRow(const Pair &pair)
{
    return {0.0, 0.0, 1.0, -static_cast<double>(pair.azimuthRate)};
}

double product(const Vector &a, const Vector &b)
{
    double sum = 0.0;
    for (std::size_t i = 0; i < Unknowns; ++i) {
        sum += a[i] * b[i];
    }
    return sum;
}

Vector product(const Matrix &matrix, const Vector &vector)
{
    Vector result;
    for (std::size_t i = 0; i < Unknowns; ++i) {
        result[i] = product(matrix[i], vector);
    }
    return result;
}

// Gauss and Jordan, of a symmetric positive definite matrix that is brought to ones on its diagonal first. Nothing
// where it is singular.
std::optional<Matrix> inverse(const Matrix &original)
{
    Vector scale;
    Matrix left;
    Matrix right{};
    for (std::size_t i = 0; i < Unknowns; ++i) {
        if (original[i][i] <= 0.0) {
            return std::nullopt;
        }
        scale[i] = 1.0 / std::sqrt(original[i][i]);
        right[i][i] = 1.0;
    }
    for (std::size_t i = 0; i < Unknowns; ++i) {
        for (std::size_t j = 0; j < Unknowns; ++j) {
            left[i][j] = original[i][j] * scale[i] * scale[j];
        }
    }
    for (std::size_t i = 0; i < Unknowns; ++i) {
        const double pivot = left[i][i];
        if (pivot < SmallestPivot) {
            return std::nullopt;
        }
        for (std::size_t j = 0; j < Unknowns; ++j) {
            left[i][j] /= pivot;
            right[i][j] /= pivot;
        }
        for (std::size_t row = 0; row < Unknowns; ++row) {
            const double factor = row == i ? 0.0 : left[row][i];
            for (std::size_t j = 0; j < Unknowns; ++j) {
                left[row][j] -= factor * left[i][j];
                right[row][j] -= factor * right[i][j];
            }
        }
    }
    for (std::size_t i = 0; i < Unknowns; ++i) {
        for (std::size_t j = 0; j < Unknowns; ++j) {
            right[i][j] *= scale[i] * scale[j];
        }
    }
    return right;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// One solution of the equations, from start to confidence.
class Adjustment {
public:
    explicit Adjustment(const std::vector<Pair> &pairs) : m_pairs(pairs), m_kept(pairs.size(), true) { }

    bool solve() { return solveRobustly() && rejectOutliers(); }

    void report(BiasReport *report) const
    {
        const Matrix covariance = sandwich();
        const auto value = [&](std::size_t i, double unit) {
            return AssessedValue{m_values[i] / unit, Confidence * std::sqrt(std::max(covariance[i][i], 0.0)) / unit};
        };
        report->solved = true;
        report->rangeBias = value(0, 1.0);
        report->rangeGain = value(1, GainUnit);
        report->azimuthBias = value(2, 1.0);
        report->timeOffset = value(3, 1.0);
        report->rangeDeviation = m_rangeDeviation;
        report->azimuthDeviation = m_azimuthDeviation;
    }

    qint64 used() const { return std::count(m_kept.begin(), m_kept.end(), true); }

    int aircraft() const
    {
        std::set<quint32> all;
        for (std::size_t i = 0; i < m_pairs.size(); ++i) {
            if (m_kept[i]) {
                all.insert(m_pairs[i].aircraft);
            }
        }
        return static_cast<int>(all.size());
    }

private:
    double rangeResidual(const Pair &pair) const { return pair.rangeError - product(rangeRow(pair), m_values); }
    double azimuthResidual(const Pair &pair) const { return pair.azimuthError - product(azimuthRow(pair), m_values); }

    void scaleByMedians()
    {
        std::vector<double> ranges;
        std::vector<double> azimuths;
        for (const Pair &pair : m_pairs) {
            ranges.push_back(rangeResidual(pair));
            azimuths.push_back(azimuthResidual(pair));
        }
        const auto deviation = [](std::vector<double> &residuals) {
            const double middle = median(residuals);
            std::transform(residuals.begin(), residuals.end(), residuals.begin(),
                [middle](double residual) { return std::abs(residual - middle); });
            return DeviationOfMad * median(residuals);
        };
        m_rangeDeviation = std::max(deviation(ranges), LeastRangeDeviation);
        m_azimuthDeviation = std::max(deviation(azimuths), LeastAzimuthDeviation);
    }

    void scaleByKept()
    {
        double ranges = 0.0;
        double azimuths = 0.0;
        for (std::size_t i = 0; i < m_pairs.size(); ++i) {
            ranges += m_kept[i] ? std::pow(rangeResidual(m_pairs[i]), 2) : 0.0;
            azimuths += m_kept[i] ? std::pow(azimuthResidual(m_pairs[i]), 2) : 0.0;
        }
        const auto count = static_cast<double>(std::max<qint64>(used(), 1));
        m_rangeDeviation = std::max(std::sqrt(ranges / count), LeastRangeDeviation);
        m_azimuthDeviation = std::max(std::sqrt(azimuths / count), LeastAzimuthDeviation);
    }

    static double huberWeight(double deviations)
    {
        return std::abs(deviations) <= HuberLimit ? 1.0 : HuberLimit / std::abs(deviations);
    }

    void addRow(const Vector &row, double error, double weight, Matrix &normal, Vector &rightSide) const
    {
        for (std::size_t i = 0; i < Unknowns; ++i) {
            rightSide[i] += weight * row[i] * error;
            for (std::size_t j = 0; j < Unknowns; ++j) {
                normal[i][j] += weight * row[i] * row[j];
            }
        }
    }

    bool solveOnce(bool isRobust)
    {
        Matrix normal{};
        Vector rightSide{};
        for (std::size_t i = 0; i < m_pairs.size(); ++i) {
            const Pair &pair = m_pairs[i];
            if (!m_kept[i]) {
                continue;
            }
            const double byRange = isRobust ? huberWeight(rangeResidual(pair) / m_rangeDeviation) : 1.0;
            const double byAzimuth = isRobust ? huberWeight(azimuthResidual(pair) / m_azimuthDeviation) : 1.0;
            addRow(rangeRow(pair), pair.rangeError, byRange / (m_rangeDeviation * m_rangeDeviation), normal, rightSide);
            addRow(azimuthRow(pair), pair.azimuthError, byAzimuth / (m_azimuthDeviation * m_azimuthDeviation), normal,
                rightSide);
        }
        const std::optional<Matrix> inverted = inverse(normal);
        if (inverted) {
            m_inverse = *inverted;
            m_values = product(m_inverse, rightSide);
        }
        return inverted.has_value();
    }

    bool solveRobustly()
    {
        for (int round = 0; round < HuberRounds; ++round) {
            scaleByMedians();
            if (!solveOnce(true)) {
                return false;
            }
        }
        scaleByMedians();
        return true;
    }

    bool rejectOutliers()
    {
        for (int round = 0; round < RejectionRounds; ++round) {
            const std::vector<bool> before = m_kept;
            for (std::size_t i = 0; i < m_pairs.size(); ++i) {
                m_kept[i] = std::abs(rangeResidual(m_pairs[i])) <= RejectionLimit * m_rangeDeviation
                    && std::abs(azimuthResidual(m_pairs[i])) <= RejectionLimit * m_azimuthDeviation;
            }
            scaleByKept();
            if (!solveOnce(false)) {
                return false;
            }
            if (m_kept == before) {
                break;
            }
        }
        return used() >= static_cast<qint64>(LeastPairs) && aircraft() >= LeastAircraft;
    }

    Matrix sandwich() const
    {
        std::unordered_map<quint32, Vector> scores;
        const double rangeWeight = 1.0 / (m_rangeDeviation * m_rangeDeviation);
        const double azimuthWeight = 1.0 / (m_azimuthDeviation * m_azimuthDeviation);
        for (std::size_t i = 0; i < m_pairs.size(); ++i) {
            const Pair &pair = m_pairs[i];
            Vector &score = scores[pair.aircraft];
            const Vector byRange = rangeRow(pair);
            const Vector byAzimuth = azimuthRow(pair);
            for (std::size_t j = 0; m_kept[i] && j < Unknowns; ++j) {
                score[j] += rangeWeight * rangeResidual(pair) * byRange[j];
                score[j] += azimuthWeight * azimuthResidual(pair) * byAzimuth[j];
            }
        }
        Matrix result{};
        for (const auto &[aircraft, score] : scores) {
            const Vector effect = product(m_inverse, score);
            for (std::size_t i = 0; i < Unknowns; ++i) {
                for (std::size_t j = 0; j < Unknowns; ++j) {
                    result[i][j] += effect[i] * effect[j];
                }
            }
        }
        // Few aircraft look more alike than they are.
        const auto count = static_cast<double>(std::max(aircraft(), 2));
        for (Vector &row : result) {
            for (double &element : row) {
                element *= count / (count - 1);
            }
        }
        return result;
    }

    const std::vector<Pair> &m_pairs;
    std::vector<bool> m_kept;
    Vector m_values{};
    Matrix m_inverse{};
    double m_rangeDeviation = 1.0;
    double m_azimuthDeviation = 1.0;
};

} // namespace

void BiasEstimator::add(const Pair &pair)
{
    if (std::abs(pair.rangeError) <= LargestRangeError && std::abs(pair.azimuthError) <= LargestAzimuthError) {
        m_pairs.add(pair);
    }
}

BiasReport BiasEstimator::report(ReferenceKind reference) const
{
    const std::vector<Pair> &pairs = m_pairs.values();
    BiasReport report;
    report.reference = reference;
    report.matched = m_pairs.count();
    report.sampled = static_cast<qint64>(pairs.size());
    if (pairs.size() < LeastPairs) {
        return report;
    }
    Adjustment adjustment(pairs);
    if (!adjustment.solve()) {
        return report;
    }
    adjustment.report(&report);
    report.used = adjustment.used();
    report.aircraft = adjustment.aircraft();
    const auto offset = static_cast<float>(report.timeOffset.value);
    const std::size_t stride = std::max<std::size_t>(pairs.size() / MostResiduals, 1);
    for (std::size_t i = 0; i < pairs.size(); i += stride) {
        const Pair &pair = pairs[i];
        report.residuals.push_back({pair.range, pair.azimuth, pair.rangeError + pair.rangeRate * offset,
            pair.azimuthError + pair.azimuthRate * offset});
    }
    return report;
}
