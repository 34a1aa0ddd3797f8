// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QWidget>
#include <string>

namespace vorlund {

// The four kinds of message box. Each runs an event loop until it is answered. The texts are plain text from
// the rules, with carriage returns between lines.

/// Exclamation icon and OK: a refusal, an error or the end of the game.
void Exclaim(QWidget* owner, const std::string& text);

/// Information icon and OK: a confirmation.
void Inform(QWidget* owner, const std::string& text);

/// Yes and No without an icon; true for Yes. No is the default button and the escape button. An empty title
/// stands for that of the other kinds, "Vorlund".
bool Ask(QWidget* owner, const std::string& text, const QString& title = {});

/// As Ask, with a question icon.
bool AskWithIcon(QWidget* owner, const std::string& text);

}  // namespace vorlund
