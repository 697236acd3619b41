#include "ui/QtUiLoader.h"

CQtUiLoader::CQtUiLoader() = default;

CQtUiLoader::CQtUiLoader(QWidget* root, QWidget* secondRoot)
{
    SetRoot(root, secondRoot);
}

void CQtUiLoader::SetRoot(QWidget* root, QWidget* secondRoot)
{
    m_hasRoot = root != nullptr;
    m_root = root;
    m_secondRoot = m_hasRoot ? secondRoot : nullptr;
}
