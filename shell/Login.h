#pragma once
#include "shell/Session.h"

/// The rights of a screen code: six characters "/abcd/" from the rights of the user, each of a to d "0" or "1".
/// A user without rights, and a code that is not among them, have all. The code is searched anywhere in the
/// text, the first hit counts.
QString ChercherDroit(const QString &code, const QString &gsDroits);

/// The administrator's password.
namespace AdminPassword {

/// In clear; empty when none is stored. A stored text that can't be deciphered comes back as it stands, and from a
/// file that can't be read comes what nobody can type, so that damage to the settings does not open the program.
QString read(const SettingsStore &settings);
/// The application key of the settings that hold it.
extern const QString application;
Result write(SettingsStore &settings, const QString &password);

} // namespace AdminPassword

enum class LoginStep {
    Done,
    NameMissing,
    PasswordMissing, ///< an administrator password exists, so every user must type one
    AdminRefused,
    Refused,
    NoConnection,
    UsersNotRead, ///< told already
    Damaged,      ///< the store can't be opened or read since it is damaged or gone
};

/// Logs a user in: sets `gsLogin`, `gsPassword`, `gsDroits`, opens `gCnn` and stores the name. Failures of the
/// connection have been shown when it returns; all else is left to the window.
LoginStep logIn(Session &session, const QString &userName, const QString &password, const QString &msAdminPW);
