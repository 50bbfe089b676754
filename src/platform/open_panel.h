#pragma once

#include <functional>
#include <optional>

#include <QStringList>

class QWidget;

/// What the open panel is asked to be.
struct OpenPanelRequest {
    QString message;  ///< what the user is asked for
    QString prompt;   ///< the text of the accepting button
    bool canChooseDirectories = false;
    bool canCreateDirectories = true;
    bool canChooseFiles = true;
    bool allowsMultipleSelection = false;
};

/// Runs modally over `parent`. The chosen paths in the panel's order; no value when cancelled.
using OpenPanel =
    std::function<std::optional<QStringList>(QWidget* parent, const OpenPanelRequest& request)>;

/// An OpenPanel: the platform's own panel where the desktop has one, else Qt's.
std::optional<QStringList> runOpenPanel(QWidget* parent, const OpenPanelRequest& request);
