# trevalo_biblioteca(NAME DEPS...): one static library per folder, built from the folder's
# sources; src/ is the include root, so headers are named "model/Viga.h",
# "platform/motor/MotorDatos.h" ...
function(trevalo_biblioteca nombre)
  file(GLOB fuentes CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(fuentes)
    add_library(${nombre} STATIC ${fuentes})
    target_include_directories(${nombre} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${nombre} PUBLIC trevalo_ajustes ${ARGN})
  else()
    add_library(${nombre} INTERFACE)
    target_include_directories(${nombre} INTERFACE ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${nombre} INTERFACE trevalo_ajustes ${ARGN})
  endif()
endfunction()

# trevalo_prueba(NAME LIBS...): one GoogleTest executable from the current test folder.
function(trevalo_prueba nombre)
  file(GLOB fuentes CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT fuentes)
    return()
  endif()
  add_executable(${nombre} ${fuentes})
  target_include_directories(${nombre} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${nombre} PRIVATE ${ARGN} GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_definitions(${nombre} PRIVATE
    TREVALO_DATOS_PRUEBA="${CMAKE_SOURCE_DIR}/tests/data"
    TREVALO_RUTA_PROGRAMA="${TREVALO_RUTA_PROGRAMA}")
  gtest_discover_tests(${nombre} DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
