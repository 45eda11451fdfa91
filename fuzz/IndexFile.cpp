#include "index/IndexFile.h"

#include <string>

#include "Targets.h"
#include "basics/RuntimeError.h"
#include "dbase/ErrorNumbers.h"

namespace zy::fuzz {

void IndexFile(std::string_view input) {
    try {
        const dbase::IndexFile index(std::string(input), "T.NDX");
        static_cast<void>(index.Find("KEY"));
        for (const auto& entry : index.Walk()) {
            const auto found = index.Find(entry.key);
            Require(!found || *found <= entry.record, "a search finds the first of equal keys");
        }
    } catch (const RuntimeError& error) {
        Require(error.Number() == dbase::kBadFormat, "what is no index is refused as such");
    }
}

} // namespace zy::fuzz
