# Report benchmarks, included by bench/CMakeLists.txt: the status grid and
# the lists of the collection and report screens on the synthetic office.
add_executable(RaporBench ${CMAKE_CURRENT_LIST_DIR}/RaporBench.cpp)
target_link_libraries(RaporBench PRIVATE velmora_sozlesme_uretec velmora_reports velmora_core)
