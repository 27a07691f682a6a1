#include "app/start_guard.h"

#include "app/ui_state.h"

#include <QTimer>

#include <chrono>

namespace {

constexpr std::chrono::minutes LongEnough{1};
const auto StartGroup = QStringLiteral("start");
const auto UnfinishedKey = QStringLiteral("unfinished");

void countStarts(int unfinished)
{
    UiState::saveValue(StartGroup, UnfinishedKey, QByteArray::number(unfinished));
}

} // namespace

StartGuard::StartGuard(QObject *parent) : QObject(parent), m_crashes(UiState::value(StartGroup, UnfinishedKey).toInt())
{
    countStarts(m_crashes + 1);
    QTimer::singleShot(LongEnough, this, [] { countStarts(0); });
}

StartGuard::~StartGuard()
{
    countStarts(0);
}
