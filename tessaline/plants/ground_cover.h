#pragma once

// The file of a ground cover, brought to where the renderer looks for it.

#include <string>
#include <string_view>

class ground_cover {
public:
    // The name under which the stream refers to a ground cover file. A file that exists is copied into the folder
    // "Plants" of the batch folder, unless one of its bare name is there, and the name of the copy is given; a copy
    // that fails is not noticed. A file that does not exist gives the path as it stands. The same path again gives the
    // same answer without a look at the files: all faces of an object have one. path: not empty, in UTF-8, with
    // separators of either platform, since models travel. batch_folder: the same in every call.
    const std::string& placed(std::string_view path, const std::string& batch_folder);

private:
    std::string last_path;
    std::string last_placed;
};
