#include "platform/single_instance.h"

// The system itself starts an application once and brings it forward on a second start.

SingleInstance::SingleInstance(const QString& lockFile, QObject* parent)
    : QObject(parent), lockFile_(lockFile) {}

SingleInstance::~SingleInstance() = default;

void SingleInstance::listen() {}

bool SingleInstance::waitForTurn(std::chrono::milliseconds /*longest*/) {
    return true;
}

bool SingleInstance::activateFirst(const FileRequest& /*request*/) {
    return false;
}

std::optional<QStringList> SingleInstance::askFirst(const FileRequest& /*request*/) {
    return std::nullopt;
}
