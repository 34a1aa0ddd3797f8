// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QWidget>
#include <string>

namespace vorlund {

// The four kinds of message box. Each blocks until it is answered. Texts are texts of the rules: plain, their
// lines ended by carriage returns.

/// A refusal, an error or the end of the game.
void Exclaim(QWidget* owner, const std::string& text);

/// A confirmation.
void Inform(QWidget* owner, const std::string& text);

/// A question without an icon; true when it was answered with Yes. Enter and Escape say No.
bool Ask(QWidget* owner, const std::string& text, const QString& title = QStringLiteral("Vorlund"));

/// The same with a question icon, for leaving a game under way.
bool AskWithIcon(QWidget* owner, const std::string& text);

}  // namespace vorlund
