# The Ministry transfer beside the bare sqlite3 shell, included by
# bench/CMakeLists.txt.
add_executable(MaliyeBench ${CMAKE_CURRENT_LIST_DIR}/MaliyeBench.cpp)
target_link_libraries(MaliyeBench PRIVATE velmora_sozlesme_uretec velmora_aktarim velmora_core)
