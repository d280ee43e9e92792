# Read by CPack once for each kind of package. Each line of CPACK_INSTALL_CMAKE_PROJECTS is a build folder, its
# project, a component and the place of that component in the package.
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 construccion)
list(GET CPACK_INSTALL_CMAKE_PROJECTS 1 proyecto)

if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
    set(CPACK_INSTALL_CMAKE_PROJECTS
        ${construccion} ${proyecto} aplicacion /usr/lib/pensiones-orvemo
        ${construccion} ${proyecto} escritorio /usr)
else()
    set(CPACK_INSTALL_CMAKE_PROJECTS ${construccion} ${proyecto} aplicacion /)
endif()
