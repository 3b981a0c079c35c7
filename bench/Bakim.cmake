# Maintenance benchmarks, included by bench/CMakeLists.txt: compaction,
# backup, restore and the search keys on the synthetic office.
add_executable(BakimBench ${CMAKE_CURRENT_LIST_DIR}/BakimBench.cpp)
target_link_libraries(BakimBench PRIVATE velmora_sozlesme_uretec velmora_core)
