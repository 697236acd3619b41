#pragma once

#include <QtGlobal>

#ifdef MVPLUGINQT_LIBRARY
#define MVPLUGINQT_EXPORT Q_DECL_EXPORT
#else
#define MVPLUGINQT_EXPORT Q_DECL_IMPORT
#endif
