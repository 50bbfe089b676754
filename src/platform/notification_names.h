#pragma once

#include <QString>

/// Every name that the program's objects post or observe on the default notification centre.
namespace notification_names {

inline const QString revealInFinder = QStringLiteral("revealInFinderMenuItem");
inline const QString showOrHideInformation = QStringLiteral("showOrHideInfomation");
inline const QString changePassword = QStringLiteral("changePassword");
inline const QString verifyPassword = QStringLiteral("yanzhengPassword");
inline const QString addItem = QStringLiteral("addmeaunItem");
inline const QString hideItem = QStringLiteral("hidemeaunItem");
inline const QString openItem = QStringLiteral("openmeaunItem");
inline const QString removeItem = QStringLiteral("removemeaunItem");
inline const QString closeItem = QStringLiteral("closemeaunItem");
inline const QString changePasswordItem = QStringLiteral("changePasswordMeunItem");
inline const QString changeCellData = QStringLiteral("changeCellData");

}  // namespace notification_names
