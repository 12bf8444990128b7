#pragma once

#include <QtGlobal>

#include <random>

namespace tavoli::test {

/// The seed of a random test, which the test prints when it fails: that of TAVOLI_SEED where it is
/// set, else another one each time.
inline unsigned randomSeed() {
  bool given = false;
  const int seed = qEnvironmentVariableIntValue("TAVOLI_SEED", &given);
  return given ? static_cast<unsigned>(seed) : std::random_device()();
}

}  // namespace tavoli::test
