# The bordro of one contract on 300,000 contracts with 2,000,000 lines, on the
# contract generator of the contract benchmarks (built here when they aren't).
if(TARGET velmora_sozlesme_uretec)
  add_executable(BordroBench ${CMAKE_CURRENT_LIST_DIR}/BordroBench.cpp)
  target_link_libraries(BordroBench PRIVATE velmora_sozlesme_uretec velmora_contract)
else()
  add_executable(BordroBench ${CMAKE_CURRENT_LIST_DIR}/BordroBench.cpp
                             ${CMAKE_CURRENT_LIST_DIR}/SozlesmeUretec.cpp)
  target_link_libraries(BordroBench PRIVATE velmora_uretec velmora_contract)
endif()
