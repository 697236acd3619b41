#include "tests/unit/plugin/fakes/FakeParts.h"

#include "plugin/PhysicsSoftClothPlugin.h"

namespace MV {

FakeSection::FakeSection(const char* name, CPhysicsSoftClothPlugin* givenPlugin)
    : FakePart(name, givenPlugin, givenPlugin)
{
}

} // namespace MV
