# bash completion for pelko-location                      -*- shell-script -*-

complete -W '--set --show --forget --help --version' pelko-location
