# fish completion for pelko-location
complete -c pelko-location -f
complete -c pelko-location -l set -x -d 'Save a location in degrees, LAT,LON'
complete -c pelko-location -l show -d 'Print the saved location and the sunrise and sunset of today'
complete -c pelko-location -l forget -d 'Remove the saved location'
complete -c pelko-location -l help -d 'Print help'
complete -c pelko-location -l version -d 'Print the version'
