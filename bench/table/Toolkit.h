#pragma once

namespace vorlan {
class CVorl_ADVApp;
}

namespace bench {

struct Toolkit {
    vorlan::CVorl_ADVApp& app;
    /// Processor time of its start.
    double seconds;
};

/// The application, made at the first call: a process can have only one. It paints into memory.
const Toolkit& toolkit();

/// The application with a new window that holds nothing.
vorlan::CVorl_ADVApp& freshWindow();

}  // namespace bench
