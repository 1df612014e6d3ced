// What the bundler provides.
declare module 'enumerations' {
  export const enumerations: Record<string, Record<number, string>>;
}
declare module '*.css';
