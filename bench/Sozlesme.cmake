# Contract benchmarks, included by bench/CMakeLists.txt: the generator of
# contracts and lines, and the contract screen's timings.
add_library(velmora_sozlesme_uretec STATIC ${CMAKE_CURRENT_LIST_DIR}/SozlesmeUretec.cpp)
target_link_libraries(velmora_sozlesme_uretec PUBLIC velmora_uretec velmora_contract)

add_executable(SozlesmeBench ${CMAKE_CURRENT_LIST_DIR}/SozlesmeBench.cpp)
target_link_libraries(SozlesmeBench PRIVATE velmora_sozlesme_uretec velmora_contract velmora_core)
