// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Module1.h"

#include "home/Placement.h"
#include "system/Clock.h"
#include "system/Files.h"

namespace tavoli {

Module1 startModule1(Files& files, const Clock& clock, const QString& applicationFolder) {
  Module1 module;
  module.applicationFolder = applicationFolder;
  module.dbPathDefault = defaultDataFolder(applicationFolder);
  // Where the folder is missing the login finds no files, and says so.
  static_cast<void>(files.makeFolder(module.dbPathDefault));
  module.dbPath = readPlacement(files, applicationFolder);
  module.clock.開始時刻 = clock.now();
  module.clock.終了時刻 = module.clock.開始時刻;
  module.clock.restClock = module.clock.開始時刻;
  return module;
}

}  // namespace tavoli
