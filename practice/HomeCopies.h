#pragma once

namespace tavoli {

class Files;
struct LearnerFiles;

/// Carries the working copies of a learner's files to where the learner's data are placed. The two
/// texts are fetched anew at the next login: each that got home is taken away here unless
/// `keepTexts`. What did not get home stays. True when everything did.
bool copyHome(const LearnerFiles& learner, Files& files, bool keepTexts);

}  // namespace tavoli
