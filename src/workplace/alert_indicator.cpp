#include "workplace/alert_indicator.h"

#include "widgets/resize_watch.h"
#include "widgets/urgency.h"

#include <QHBoxLayout>

namespace {

constexpr int DistanceFromEdge = 12; // pixels
constexpr auto NetNames = {"MSAW", "APW", "STCA"};

// As in the status bar.
QString netStyle(bool active)
{
    return QStringLiteral("color: white; padding: 2px 6px; background-color: %1")
        .arg(QLatin1String(active ? "green" : "gray"));
}

void dress(QLabel *label, const QString &style)
{
    if (label->styleSheet() != style) { // setting one costs a new layout
        label->setStyleSheet(style);
    }
}

} // namespace

AlertIndicator::AlertIndicator(QWidget *scope) : QWidget(scope), m_asking(new QLabel(this))
{
    setObjectName("alertIndicator");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(3);
    row->addWidget(m_asking);
    std::size_t net = 0;
    for (const char *name : NetNames) {
        m_nets[net] = new QLabel(QLatin1String(name), this);
        row->addWidget(m_nets[net++]);
    }
    dress(m_asking, urgencyStyle(Urgency::Alarm) + QStringLiteral("; padding: 2px 6px; font-weight: bold"));
    showAlerts({}, 0);
    new ResizeWatch(scope, this, [this] { place(); });
    hide();
}

void AlertIndicator::showAlerts(const std::array<bool, 3> &active, int asking)
{
    for (std::size_t net = 0; net < active.size(); ++net) {
        dress(m_nets[net], netStyle(active[net]));
    }
    m_asking->setText(tr("%n to acknowledge", nullptr, asking));
    m_asking->setVisible(asking > 0);
    place();
}

void AlertIndicator::place()
{
    const QSize size = sizeHint();
    setGeometry(QRect(QPoint(parentWidget()->width() - DistanceFromEdge - size.width(), DistanceFromEdge), size));
}
