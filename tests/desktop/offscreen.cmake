# The desktop half without a screen, at a whole and a broken scale.
add_executable(tumbledeep-desktop-tests offscreen_test.cpp)
target_link_libraries(tumbledeep-desktop-tests PRIVATE tumbledeep-desktop GTest::gtest)
foreach(scale IN ITEMS 1 1.5)
  add_test(NAME desktop.offscreen.${scale} COMMAND tumbledeep-desktop-tests)
  set_tests_properties(desktop.offscreen.${scale} PROPERTIES
    TIMEOUT 120
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${scale};${DESKTOP_LEAKS}")
endforeach()
