# Copies what drafters see of the samples from FROM to TO; the scripts that draw them stay.
file(REMOVE_RECURSE ${TO})
foreach(folder catalog blocks drawings pictures)
  file(COPY ${FROM}/${folder} DESTINATION ${TO} PATTERN "*.py" EXCLUDE)
endforeach()
