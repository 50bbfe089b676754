#pragma once

#include <QMimeType>
#include <QString>

/// The uniform type identifier that stands for a type of the shared MIME database: of the type
/// itself, of its nearest ancestor that has one, or "public.data".
QString typeIdentifier(const QMimeType& type);
