#pragma once

#include "display/track_display_format.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QFontComboBox;
class QGroupBox;
class QSpinBox;

// The fields of a TrackDisplayFormat.
class TrackFormatForm final : public QWidget {
    Q_OBJECT

public:
    explicit TrackFormatForm(QWidget *parent = nullptr);

    TrackDisplayFormat format() const;
    void setFormat(const TrackDisplayFormat &format);

Q_SIGNALS:
    // Some field was changed by the operator or by setFormat.
    void changed();

private:
    struct FieldSwitch {
        QCheckBox *box = nullptr;
        bool TrackDisplayFormat::*field = nullptr;
    };

    QGroupBox *makeLabelGroup();
    QGroupBox *makeAppearanceGroup();
    QGroupBox *makeSymbolGroup();
    QGroupBox *makeTrailGroup();
    QGroupBox *makeVectorGroup();
    QSpinBox *makeNumber(int minimum, int maximum, const QString &unit, const QString &objectName);
    void updateVectorUnit();

    TrackDisplayFormat m_format; // as set; what no field shows stays
    QGroupBox *m_label = nullptr;
    std::array<FieldSwitch, 10> m_fields = {};
    QFontComboBox *m_fontFamily = nullptr;
    QString m_shownFamily; // by the box after setFormat
    QSpinBox *m_fontSize = nullptr;
    QCheckBox *m_background = nullptr;
    QSpinBox *m_padding = nullptr;
    QComboBox *m_symbol = nullptr;
    QSpinBox *m_symbolSize = nullptr;
    QGroupBox *m_trail = nullptr;
    QSpinBox *m_trailDots = nullptr;
    QGroupBox *m_vector = nullptr;
    QComboBox *m_vectorMode = nullptr;
    QSpinBox *m_vectorRange = nullptr;
    QCheckBox *m_vectorTicks = nullptr;
};
