#pragma once

namespace vorlan {
class CVorl_ADVApp;
}

namespace bench {

/// The application, made at the first call: a program can have only one. It paints into memory.
vorlan::CVorl_ADVApp& startToolkit();

}  // namespace bench
