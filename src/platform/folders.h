#pragma once
// Where the data tree lies on this machine. Files and labels keep the tree's own texts (`C:`,
// `\orvex-data\...`); here alone they become real paths.
#include <filesystem>
#include <string>
#include <string_view>

namespace tipline::platform {

/// The data home, which is drive `C:`: `given` when not empty, else TIPLINE_HOME, else
/// $XDG_DATA_HOME/tipline, else ~/.local/share/tipline, else tipline under the temporary folder.
std::filesystem::path DataHome(std::string_view given = "");

/// `tree` (`C:\orvex-data\Basketball\seasons\Demo\`, either slash) as a path under `home`. Another drive
/// letter is a folder of that letter beside the tree (`drive-d`). No part of the text can lead out of `home`:
/// "." and ".." fall out, with blanks around a name and zero bytes. The tree does not tell great letters from
/// small ones: a folder or file that is there in another case is the one meant.
std::filesystem::path RealPath(const std::filesystem::path& home, std::string_view tree);

/// A drive of the tree ("C:", "d:") is there: the data home always, another letter when it has its folder.
bool DriveExists(const std::filesystem::path& home, std::string_view drive);

/// The folder with the files that ship with the program (names, era figures): TIPLINE_DATA, else the folder
/// noted when the program was built while it is there, else `data` beside the program.
std::filesystem::path ShippedData();

}  // namespace tipline::platform
