#include "host/import/ModelFiles.h"

#include <assimp/IOStream.hpp>

#include <memory>
#include <stdexcept>
#include <utility>

namespace Host {

namespace {

/// A reader that works asks a few times at the end of a file.
constexpr int maxVainReads = 1000;

class GuardedStream : public Assimp::IOStream
{
public:
    explicit GuardedStream(std::unique_ptr<Assimp::IOStream> stream)
        : m_stream(std::move(stream))
    {
    }

    std::size_t Read(void* buffer, std::size_t size, std::size_t count) override
    {
        const std::size_t read = m_stream->Read(buffer, size, count);
        m_vainReads = read > 0 ? 0 : m_vainReads + 1;
        if (m_vainReads > maxVainReads) {
            throw std::runtime_error("the file ends too early");
        }
        return read;
    }

    std::size_t Write(const void* buffer, std::size_t size, std::size_t count) override
    {
        return m_stream->Write(buffer, size, count);
    }

    aiReturn Seek(std::size_t offset, aiOrigin origin) override { return m_stream->Seek(offset, origin); }
    std::size_t Tell() const override { return m_stream->Tell(); }
    std::size_t FileSize() const override { return m_stream->FileSize(); }
    void Flush() override { m_stream->Flush(); }

private:
    std::unique_ptr<Assimp::IOStream> m_stream;
    int m_vainReads = 0;
};

} // namespace

Assimp::IOStream* ModelFiles::Open(const char* path, const char* mode)
{
    std::unique_ptr<Assimp::IOStream> stream(DefaultIOSystem::Open(path, mode));
    return stream ? std::make_unique<GuardedStream>(std::move(stream)).release() : nullptr;
}

void ModelFiles::Close(Assimp::IOStream* stream)
{
    const std::unique_ptr<Assimp::IOStream> closed(stream);
}

} // namespace Host
