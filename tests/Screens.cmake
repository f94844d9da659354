# The rules of keys and window, and everything that needs the toolkit.
vexa_rule_test(toolkit_rules_test
  toolkit/KeyTest.cpp
  toolkit/LineTextTest.cpp
  toolkit/ModesTest.cpp
  toolkit/TypedSearchTest.cpp)
vexa_rule_test(app_window_rules_test
  app/CalculatorKeypadTest.cpp
  app/CommandLineTest.cpp
  app/WindowPlaceTest.cpp)

vexa_screen_test(edit_line_test toolkit/EditLineTest.cpp)
vexa_screen_test(edit_line_composing_test toolkit/EditLineComposingTest.cpp)
vexa_screen_test(scroll_areas_test toolkit/ScrollAreasTest.cpp)
vexa_screen_test(limit_length_test toolkit/LimitLengthTest.cpp)
vexa_screen_test(boxes_test toolkit/BoxesTest.cpp)
vexa_screen_test(file_dialogs_test toolkit/FileDialogsTest.cpp)
vexa_screen_test(keypad_test toolkit/KeypadTest.cpp)
vexa_screen_test(result_line_test toolkit/ResultLineTest.cpp)
vexa_screen_test(theme_test toolkit/ThemeTest.cpp)
vexa_screen_test(calculator_screen_test app/CalculatorScreenTest.cpp)
vexa_screen_test(keypad_on_screen_test app/KeypadOnScreenTest.cpp)
vexa_screen_test(macro_editor_dialog_test macros/MacroEditorDialogTest.cpp)
vexa_screen_test(macro_editor_save_test macros/MacroEditorSaveTest.cpp)
vexa_screen_test(macro_key_test macros/MacroKeyTest.cpp)
vexa_screen_test(memory_key_test macros/MemoryKeyTest.cpp)
vexa_screen_test(display_formatting_dialog_test display/DisplayFormattingDialogTest.cpp)
vexa_screen_test(end_to_end_test app/EndToEndTest.cpp)
vexa_screen_test(touch_size_test toolkit/TouchSizeTest.cpp)
# The same on the smallest screen.
add_test(NAME touch_size_test.small_screen COMMAND touch_size_test)
set_tests_properties(touch_size_test.small_screen PROPERTIES ENVIRONMENT
  QT_QPA_PLATFORM=offscreen:configfile=${CMAKE_CURRENT_SOURCE_DIR}/support/SmallScreen.json)
# Frames at whole and at broken numbers of pixels.
vexa_screen_test(frames_test toolkit/FramesTest.cpp)
foreach(scale 1.25 1.5 1.75)
  add_test(NAME frames_test.${scale} COMMAND frames_test)
  set_tests_properties(frames_test.${scale} PROPERTIES ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${scale}")
endforeach()
vexa_screen_test(main_frame_test app/MainFrameTest.cpp)
vexa_screen_test(settings_saver_test app/SettingsSaverTest.cpp)
vexa_screen_test(single_instance_test app/SingleInstanceTest.cpp)

# The window under a window manager, in parts that run beside each other; where there is none, ctest
# reports them as skipped.
add_executable(window_place_on_desktop app/WindowPlaceOnDesktopTest.cpp)
set_target_properties(window_place_on_desktop PROPERTIES AUTOMOC ON)
target_link_libraries(window_place_on_desktop PRIVATE vexa_screens Qt6::Test)
target_compile_options(window_place_on_desktop PRIVATE ${test_options})
target_precompile_headers(window_place_on_desktop REUSE_FROM vexa_screen_test_headers)
foreach(part RANGE 3)
  add_test(NAME window_place_on_desktop.${part}
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/support/desktop $<TARGET_FILE:window_place_on_desktop>)
  set_tests_properties(window_place_on_desktop.${part} PROPERTIES
    SKIP_RETURN_CODE 77 ENVIRONMENT VEXA_PART=${part})
endforeach()

vexa_screen_test(process_test app/ProcessTest.cpp)
target_compile_definitions(process_test PRIVATE VEXA_PROGRAM="$<TARGET_FILE:vexa-calculator>")
add_dependencies(process_test vexa-calculator)

vexa_screen_test(unit_converter_dialog_test converter/UnitConverterDialogTest.cpp)
vexa_screen_test(unit_converter_memory_test converter/UnitConverterMemoryTest.cpp)
vexa_screen_test(unit_converter_keys_test converter/UnitConverterKeysTest.cpp)
vexa_screen_test(user_conversion_dialog_test converter/UserConversionDialogTest.cpp)
vexa_screen_test(user_conversion_save_test converter/UserConversionSaveTest.cpp)
vexa_screen_test(user_define_category_test converter/UserDefineCategoryTest.cpp)
vexa_screen_test(converter_round_trip_test converter/ConverterRoundTripTest.cpp)
vexa_screen_test(touch_combo_box_test toolkit/TouchComboBoxTest.cpp)
vexa_screen_test(guide_window_test guide/GuideWindowTest.cpp)
