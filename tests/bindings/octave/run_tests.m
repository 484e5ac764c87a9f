## Runs files of tests, in a folder of their own:
##
##     octave-cli run_tests.m <folder> <file.tst>
##
## What the tests share is in shared/.
1;

function main (folder, file)
  addpath (fullfile (fileparts (mfilename ("fullpath")), "shared"));
  if (! isfolder (folder))
    mkdir (folder);
  endif
  cd (folder);
  [passed, count] = test (file, "quiet", "log.txt");
  if (passed != count)
    puts (fileread ("log.txt"));
  endif
  printf ("%d passed, %d failed\n", passed, count - passed);
  exit (double (passed != count || count == 0));
endfunction

main (argv (){:});
