# Writes PARTS one after the other, with an empty line between them, to WHOLE.
file(WRITE "${WHOLE}.new" "")
foreach(part IN LISTS PARTS)
  file(READ "${part}" text)
  file(APPEND "${WHOLE}.new" "${text}\n")
endforeach()
file(RENAME "${WHOLE}.new" "${WHOLE}")
