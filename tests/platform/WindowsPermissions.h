#pragma once

#include <optional>
#include <string>

namespace zy::test {

/// Gives a file or a folder an access list that inherits nothing, with these rights for the user of the tests
/// and for everybody. Rights are letters as in "FR" for reading a file and "FW" for writing it; none is no
/// entry. The user can always change the list again. False when the list could not be set.
bool SetAccess(const std::string& path, const std::string& userRights, const std::string& everybodysRights);

/// The rights that an access list gives, in figures as in 0604: the user's, and everybody's.
std::optional<unsigned> AccessFigures(const std::string& path);

/// Who runs the tests, as text such as "S-1-5-21-...".
std::string UserOfTheTests();

/// A security descriptor as text, but for its group.
std::string DescriptorText(void* descriptor);

} // namespace zy::test
