#pragma once

#include <assimp/DefaultIOSystem.h>

namespace Host {

/// The files that Assimp reads for a model. Some of its readers go on asking for more at the end of a file that was cut
/// off, for ever; here that ends in an error.
class ModelFiles : public Assimp::DefaultIOSystem
{
public:
    Assimp::IOStream* Open(const char* path, const char* mode = "rb") override;
    void Close(Assimp::IOStream* stream) override;
};

} // namespace Host
