## What a property and a call cost from Octave, in microseconds of the processor, beside a property of a bare class with such access
## functions and a call of a method of it.
1;

function seconds = measure (body, count = 20000, repeats = 5)
  seconds = Inf;
  for i = 1:repeats
    start = cputime ();
    body (count);
    seconds = min (seconds, (cputime () - start) / count);
  endfor
endfunction

function read (object, count)
  for i = 1:count
    object.Name;
  endfor
endfunction

function write (object, count)
  for i = 1:count
    object.Name = "Remark";
  endfor
endfunction

function call (object, count)
  for i = 1:count
    object.replace ("text");
  endfor
endfunction

function make (count)
  for i = 1:count
    vellox.ppt.Paragraph ("text");
  endfor
endfunction

function main ()
  addpath (fileparts (mfilename ("fullpath")));
  box = vellox.ppt.TextBox ();
  bare = BareBox ();
  cases = {"a property read", @read; "a property set", @write; "a call", @call};
  printf ("%-20s%12s%12s\n", "microseconds", "vellox", "bare class");
  for i = 1:rows (cases)
    printf ("%-20s%12.1f%12.1f\n", cases{i,1}, 1e6 * measure (@(count) cases{i,2} (box, count)),
            1e6 * measure (@(count) cases{i,2} (bare, count)));
  endfor
  printf ("%-20s%12.1f\n", "an object made", 1e6 * measure (@make, 5000));
endfunction

main ();
