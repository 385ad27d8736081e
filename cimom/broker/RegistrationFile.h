#pragma once

#include <string>
#include <vector>

#include "ProviderRegistration.h"

namespace Cimom {

// Reads a provider registration file (YAML):
//
//   libraryPath: [../lib, /usr/lib/veldra]   # optional; relative to this file
//   providers:
//     - name: QLNVeldra                       # provider name handed to the entry points
//       library: QLNVeldra                    # libQLNVeldra.so, searched in the library path
//       namespaces: [root/mwq]
//       classes: [QLN_VDArraySystem, QLN_VDArraySystemStorageVolume]
//       kinds: [instance, association, method, indication]
//
// Every field of a provider is required and unknown fields are errors, so a
// typo is reported rather than silently ignored. Errors are CimError
// (CMPI_RC_ERR_FAILED) naming the file and the provider entry.
class RegistrationFile {
public:
    struct Contents {
        std::vector<std::string> libraryDirs; // made absolute against the file's folder
        std::vector<ProviderRegistration> providers;
    };

    static Contents load(std::string const& path);
    // sourceName names the text in errors; baseDir anchors relative library dirs.
    static Contents parse(std::string const& yamlText, std::string const& sourceName,
                          std::string const& baseDir);
    static char const* kindName(ProviderRegistration::Kind kind);
};

} // namespace Cimom
