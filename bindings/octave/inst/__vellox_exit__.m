## Octave is about to end: the library lets go of listeners and of what a filter holds.
function __vellox_exit__ ()
  __vellox__ ("end");
endfunction
