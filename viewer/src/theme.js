// Light and dark: as the system wants it until somebody chooses.

export function followTheme() {
  const system = window.matchMedia('(prefers-color-scheme: dark)');
  const set = () => {
    document.documentElement.dataset.theme = system.matches ? 'dark' : 'light';
  };
  set();
  system.addEventListener('change', set);
}

export function switchTheme() {
  const { dataset } = document.documentElement;
  dataset.theme = dataset.theme === 'dark' ? 'light' : 'dark';
}
