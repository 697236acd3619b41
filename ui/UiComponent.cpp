#include "ui/UiComponent.h"

CUiComponent::~CUiComponent() = default;
