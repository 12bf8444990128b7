// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Login.h"

namespace tavoli::test {

/// A login screen that remembers what it was told.
class FakeLoginScreen final : public LoginScreen {
 public:
  void setUserId(const QString& text) override { userId = text; }
  void focusUserId() override { focused = QStringLiteral("Text1"); }
  void focusPassword() override { focused = QStringLiteral("Text2"); }
  void setBusy(bool on) override { busy = on; }
  void showEngineTrouble() override { trouble = true; }
  QString userId;
  QString focused;
  bool busy = false;
  bool trouble = false;
};

}  // namespace tavoli::test
