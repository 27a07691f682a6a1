#include "settings/track_label_format_window.h"

#include "display/geo_track_display.h"
#include "settings/track_format_form.h"
#include "settings/track_format_preview.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

TrackLabelFormatWindow::TrackLabelFormatWindow(GeoTrackDisplay *display, QWidget *parent)
    : GeometryDialog(QStringLiteral("TrackLabelFormatWindow"), parent), m_display(display),
      m_form(new TrackFormatForm(this)), m_preview(new TrackFormatPreview(this))
{
    setWindowTitle(tr("Track Label Format"));
    auto *buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, Qt::Horizontal, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &TrackLabelFormatWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TrackLabelFormatWindow::reject);
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &TrackLabelFormatWindow::apply);
    connect(m_form, &TrackFormatForm::changed, this, &TrackLabelFormatWindow::updatePreview);
    auto *panes = new QHBoxLayout;
    panes->addWidget(m_form);
    panes->addWidget(m_preview, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(panes, 1);
    layout->addWidget(buttons);
    readDisplay();
}

TrackDisplayFormat TrackLabelFormatWindow::format() const
{
    return m_form->format();
}

void TrackLabelFormatWindow::setGround(const QColor &ground)
{
    m_ground = ground;
    m_preview->setColors(*m_display, m_ground);
}

void TrackLabelFormatWindow::readDisplay()
{
    TrackDisplayFormat shown;
    shown.readFrom(*m_display);
    m_form->setFormat(shown);
    m_preview->setColors(*m_display, m_ground);
}

void TrackLabelFormatWindow::updatePreview()
{
    m_preview->setFormat(m_form->format());
}

void TrackLabelFormatWindow::apply()
{
    format().applyTo(*m_display);
}

void TrackLabelFormatWindow::accept()
{
    apply();
    QDialog::accept();
}
