# Where things go when the tree is installed. A Windows host keeps its plug-ins and its data beside its program.
include(GNUInstallDirs)

if(WIN32)
    set(SOFTCLOTH_INSTALL_PLUGIN_DIR "Plugins")
    set(SOFTCLOTH_INSTALL_HOST_DATA_DIR "Data")
    set(SOFTCLOTH_INSTALL_DOC_DIR ".")
else()
    set(SOFTCLOTH_INSTALL_PLUGIN_DIR "${CMAKE_INSTALL_LIBDIR}/movira")
    set(SOFTCLOTH_INSTALL_HOST_DATA_DIR "${CMAKE_INSTALL_DATADIR}/movira")
    set(SOFTCLOTH_INSTALL_DOC_DIR "${CMAKE_INSTALL_DOCDIR}")
endif()
