#pragma once

#include <QMimeType>
#include <QString>

/// The uniform type identifier that stands for a type of the shared MIME database: of the type
/// itself or its nearest ancestor that has one; else "public.image", "public.audio" or
/// "public.movie" by its family, or "public.data".
QString typeIdentifier(const QMimeType& type);
