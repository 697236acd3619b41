#pragma once

#include "host/simulation/ClothShape.h"

#include <memory>

namespace Bench {

/// A cloth of Bullet's, with the same edges and held vertices as ours and links over two edges that resist bending.
class BulletSheet
{
public:
    /// \param iterations of the position solver in each step
    BulletSheet(const Host::ClothShape& shape, int iterations);
    ~BulletSheet();
    BulletSheet(const BulletSheet&) = delete;
    BulletSheet& operator=(const BulletSheet&) = delete;

    /// Falls on by one step.
    void Step(float duration);
    Host::Vectors Positions() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace Bench
