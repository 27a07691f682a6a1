#include "settings/track_format_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

TrackFormatForm::TrackFormatForm(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeLabelGroup());
    layout->addWidget(makeAppearanceGroup());
    layout->addWidget(makeSymbolGroup());
    layout->addWidget(makeTrailGroup());
    layout->addWidget(makeVectorGroup());
    layout->addStretch(1);
    setFormat(m_format);
}

QGroupBox *TrackFormatForm::makeLabelGroup()
{
    m_label = new QGroupBox(tr("&Label with"), this);
    m_label->setCheckable(true);
    connect(m_label, &QGroupBox::toggled, this, &TrackFormatForm::changed);
    using Format = TrackDisplayFormat;
    struct Row {
        QString text;
        bool Format::*field;
    };
    // In the order of the label's lines, left to right.
    const std::array<Row, 10> rows{Row{tr("&Alert indicator"), &Format::alertIndicatorVisible},
        Row{tr("Track &number"), &Format::trackNumVisible}, Row{tr("&ICAO address"), &Format::icaoAddrVisible},
        Row{tr("&Callsign"), &Format::callsignVisible}, Row{tr("S&quawk"), &Format::squawkVisible},
        Row{tr("L&evel"), &Format::levelVisible}, Row{tr("Selected al&titude"), &Format::selectedAltitudeVisible},
        Row{tr("&Ground speed"), &Format::groundSpeedVisible}, Row{tr("&Vertical rate"), &Format::verticalRateVisible},
        Row{tr("&Heading"), &Format::headingVisible}};
    auto *grid = new QGridLayout(m_label);
    const int half = static_cast<int>(rows.size() + 1) / 2;
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        const Row &row = rows[static_cast<std::size_t>(i)];
        auto *box = new QCheckBox(row.text);
        connect(box, &QCheckBox::toggled, this, &TrackFormatForm::changed);
        grid->addWidget(box, i % half, i / half);
        m_fields[static_cast<std::size_t>(i)] = {box, row.field};
    }
    return m_label;
}

QGroupBox *TrackFormatForm::makeAppearanceGroup()
{
    auto *group = new QGroupBox(tr("Appearance of the label"), this);
    auto *form = new QFormLayout(group);
    m_fontFamily = new QFontComboBox;
    m_fontFamily->setFontFilters(QFontComboBox::ScalableFonts);
    m_fontFamily->setMinimumContentsLength(16);
    m_fontFamily->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_fontSize = makeNumber(
        TrackDisplayFormat::MinFontSize, TrackDisplayFormat::MaxFontSize, tr(" pt"), QStringLiteral("fontSize"));
    m_background = new QCheckBox(tr("&Background"));
    m_padding = makeNumber(0, TrackDisplayFormat::MaxBackgroundPadding, tr(" px"), QStringLiteral("padding"));
    form->addRow(tr("&Font:"), m_fontFamily);
    form->addRow(tr("Font si&ze:"), m_fontSize);
    form->addRow(m_background);
    form->addRow(tr("&Padding:"), m_padding);
    connect(m_fontFamily, &QFontComboBox::currentFontChanged, this, &TrackFormatForm::changed);
    connect(m_background, &QCheckBox::toggled, this, &TrackFormatForm::changed);
    connect(m_background, &QCheckBox::toggled, m_padding, &QWidget::setEnabled);
    return group;
}

QGroupBox *TrackFormatForm::makeSymbolGroup()
{
    auto *group = new QGroupBox(tr("Symbol"), this);
    auto *form = new QFormLayout(group);
    m_symbol = new QComboBox;
    m_symbol->setObjectName(QStringLiteral("symbol"));
    m_symbol->addItem(tr("Kind of surveillance"), false);
    m_symbol->addItem(tr("Aircraft, turned to its heading"), true);
    m_symbolSize = makeNumber(
        TrackDisplayFormat::MinSymbolSize, TrackDisplayFormat::MaxSymbolSize, tr(" px"), QStringLiteral("symbolSize"));
    form->addRow(tr("Sho&ws:"), m_symbol);
    form->addRow(tr("&Size:"), m_symbolSize);
    connect(m_symbol, &QComboBox::currentIndexChanged, this, &TrackFormatForm::changed);
    return group;
}

QGroupBox *TrackFormatForm::makeTrailGroup()
{
    m_trail = new QGroupBox(tr("T&rail"), this);
    m_trail->setCheckable(true);
    auto *form = new QFormLayout(m_trail);
    m_trailDots = makeNumber(1, TrackDisplayFormat::MaxTrailDots, QString(), QStringLiteral("trailDots"));
    form->addRow(tr("Past p&ositions:"), m_trailDots);
    connect(m_trail, &QGroupBox::toggled, this, &TrackFormatForm::changed);
    return m_trail;
}

QGroupBox *TrackFormatForm::makeVectorGroup()
{
    m_vector = new QGroupBox(tr("Spee&d vector"), this);
    m_vector->setCheckable(true);
    auto *form = new QFormLayout(m_vector);
    m_vectorMode = new QComboBox;
    m_vectorMode->setObjectName(QStringLiteral("vectorMode"));
    m_vectorMode->addItem(tr("Time of flight"), true);
    m_vectorMode->addItem(tr("Distance"), false);
    m_vectorRange = makeNumber(1, TrackDisplayFormat::MaxVectorRange, QString(), QStringLiteral("vectorRange"));
    m_vectorTicks = new QCheckBox(tr("Tic&ks at every minute or mile"));
    form->addRow(tr("&Measures:"), m_vectorMode);
    form->addRow(tr("&Up to:"), m_vectorRange);
    form->addRow(m_vectorTicks);
    connect(m_vector, &QGroupBox::toggled, this, &TrackFormatForm::changed);
    connect(m_vectorMode, &QComboBox::currentIndexChanged, this, &TrackFormatForm::updateVectorUnit);
    connect(m_vectorMode, &QComboBox::currentIndexChanged, this, &TrackFormatForm::changed);
    connect(m_vectorTicks, &QCheckBox::toggled, this, &TrackFormatForm::changed);
    return m_vector;
}

QSpinBox *TrackFormatForm::makeNumber(int minimum, int maximum, const QString &unit, const QString &objectName)
{
    auto *box = new QSpinBox;
    box->setObjectName(objectName);
    box->setRange(minimum, maximum);
    box->setSuffix(unit);
    connect(box, &QSpinBox::valueChanged, this, &TrackFormatForm::changed);
    return box;
}

void TrackFormatForm::updateVectorUnit()
{
    m_vectorRange->setSuffix(m_vectorMode->currentData().toBool() ? tr(" min") : tr(" NM"));
}

TrackDisplayFormat TrackFormatForm::format() const
{
    TrackDisplayFormat format = m_format;
    format.labelVisible = m_label->isChecked();
    for (const FieldSwitch &entry : m_fields) {
        format.*entry.field = entry.box->isChecked();
    }
    // The box shows an installed face in place of one that is not; the latter stays until another one is chosen.
    if (m_fontFamily->currentFont().family() != m_shownFamily) {
        format.labelFont.setFamilies({m_fontFamily->currentFont().family()});
    }
    format.labelFont.setPointSize(m_fontSize->value());
    format.backgroundVisible = m_background->isChecked();
    format.backgroundPadding = m_padding->value();
    format.targetTypeSymbol = m_symbol->currentData().toBool();
    format.symbolSize = m_symbolSize->value();
    format.trailVisible = m_trail->isChecked();
    format.trailDots = m_trailDots->value();
    format.vectorVisible = m_vector->isChecked();
    format.vectorTimeMode = m_vectorMode->currentData().toBool();
    format.vectorRange = m_vectorRange->value();
    format.vectorTicksVisible = m_vectorTicks->isChecked();
    return format;
}

void TrackFormatForm::setFormat(const TrackDisplayFormat &format)
{
    {
        const QSignalBlocker oneSignalAtTheEnd(this);
        m_format = format;
        m_label->setChecked(format.labelVisible);
        for (const FieldSwitch &entry : m_fields) {
            entry.box->setChecked(format.*entry.field);
        }
        m_fontFamily->setCurrentFont(format.labelFont);
        m_shownFamily = m_fontFamily->currentFont().family();
        m_fontSize->setValue(format.labelFont.pointSize());
        m_background->setChecked(format.backgroundVisible);
        m_padding->setValue(format.backgroundPadding);
        m_padding->setEnabled(format.backgroundVisible);
        m_symbol->setCurrentIndex(m_symbol->findData(format.targetTypeSymbol));
        m_symbolSize->setValue(format.symbolSize);
        m_trail->setChecked(format.trailVisible);
        m_trailDots->setValue(format.trailDots);
        m_vector->setChecked(format.vectorVisible);
        m_vectorMode->setCurrentIndex(m_vectorMode->findData(format.vectorTimeMode));
        m_vectorRange->setValue(format.vectorRange);
        m_vectorTicks->setChecked(format.vectorTicksVisible);
        updateVectorUnit();
    }
    Q_EMIT changed();
}
